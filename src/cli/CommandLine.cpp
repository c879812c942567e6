#include "cli/CommandLine.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "cli/Commands.h"
#include "foundation/GlobalDefine.h"
#include "printing/OutputFile.h"
#include "runtime/OutputGuard.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/RuntimeError.h"

namespace cli {

namespace {

// A list below the parser's own "unlimited": that one would split a value such as [a,b].
constexpr int longestList = 1'000'000;

/// Wrong arguments, told by what() to the user.
class UsageError : public runtime::RuntimeError {
 public:
  explicit UsageError(const QString& description) : RuntimeError(Usage, description) {}
};

/// An option with what the parser knows of it.
struct Bound {
  Option option;
  CLI::Option* parsed;
};

void localize(CLI::App& app) {
  const auto formatter = std::make_shared<CLI::Formatter>();
  formatter->label("Usage", "用法");
  formatter->label("OPTIONS", "选项");
  formatter->label("SUBCOMMAND", "命令");
  formatter->label("Positionals", "参数");
  app.formatter(formatter);
  app.set_help_flag("-h,--help", "显示帮助")->group("选项");
}

CLI::Option* addHome(CLI::App& app, bool mustBeNamed) {
  return app.add_option("--home")
      ->description(mustBeNamed ? "要建立的程序目录（默认取环境变量 ATTENDANCE_HOME）"
                                : "程序目录（默认取环境变量 ATTENDANCE_HOME，再取程序所在目录）")
      ->option_text("DIR")
      ->group("选项");
}

CLI::Option* addOption(CLI::App& app, const Option& option) {
  const std::string name = option.name.toStdString();
  const std::string help =
      (option.help + (option.required ? QStringLiteral("（必需）") : QString())).toStdString();
  if (std::holds_alternative<bool*>(option.target))
    return app.add_flag(name)->description(help)->group("选项");
  const bool list = std::holds_alternative<QStringList*>(option.target);
  const QString text = option.valueName + (list ? QStringLiteral("...") : QString());
  return app.add_option(name)
      ->description(help)
      ->option_text(text.toStdString())
      ->expected(1, list ? longestList : 1)
      // Without it a list known by its place ends after its first value.
      ->allow_extra_args(list && !option.name.startsWith(u'-'))
      ->group("选项");
}

int toBoundedInt(const Option& option, const QString& text) {
  bool ok = false;
  const int value = text.toInt(&ok);
  if (!ok || value < option.least || value > option.most) {
    throw UsageError(QStringLiteral("选项 %1 的值“%2”不是 %3 到 %4 之间的整数")
                         .arg(option.name, text)
                         .arg(option.least)
                         .arg(option.most));
  }
  return value;
}

void store(const Bound& bound) {
  const Option& option = bound.option;
  QStringList values;
  for (const std::string& value : bound.parsed->results()) values.append(QString::fromStdString(value));
  if (values.isEmpty()) {
    if (option.required) throw UsageError(QStringLiteral("缺少 %1").arg(option.name));
    return;
  }
  if (bool* const* flag = std::get_if<bool*>(&option.target)) **flag = true;
  if (int* const* number = std::get_if<int*>(&option.target)) **number = toBoundedInt(option, values.first());
  if (QString* const* text = std::get_if<QString*>(&option.target)) **text = values.first();
  if (QStringList* const* list = std::get_if<QStringList*>(&option.target)) **list = values;
  if (values.contains(QString())) throw UsageError(QStringLiteral("%1 不能为空").arg(option.name));
}

/// The parser takes whatever stands behind an option for its value, the next option as well.
void refuseOptionAsValue(const Bound& bound, const std::vector<Bound>& all) {
  if (!bound.option.name.startsWith(u'-') || bound.parsed->results().empty()) return;
  const QString value = QString::fromStdString(bound.parsed->results().front());
  const bool isOption = std::any_of(all.begin(), all.end(), [&value](const Bound& other) {
    return other.option.name.startsWith(u'-') && other.option.name == value;
  });
  if (isOption) throw UsageError(QStringLiteral("选项 %1 缺少值").arg(bound.option.name));
}

/// The value of --home, which may stand before or behind the command; the one behind counts.
QString homeOf(const CLI::Option* before, const CLI::Option* behind) {
  const CLI::Option* given = behind->count() > 0 ? behind : before;
  if (given->count() == 0) return {};
  QString home = QString::fromStdString(given->results().front());
  if (home.isEmpty()) throw UsageError(QStringLiteral("--home 不能为空"));
  return home;
}

void refuseExtras(const CLI::App& app) {
  for (const std::string& extra : app.remaining(true)) {
    // The mark before arguments that look like options is left over too.
    if (extra == "--") continue;
    throw UsageError(QStringLiteral("不认识的参数：%1").arg(QString::fromStdString(extra)));
  }
}

/// The parser's complaint in the user's language. Only a wrong count of values is left to the parser to find.
QString translated(const CLI::ParseError& error) {
  const QString words = QString::fromStdString(error.what());
  const qsizetype colon = words.indexOf(u':');
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr && colon > 0) {
    return QStringLiteral("选项 %1 缺少值，或给出了不止一个值").arg(words.left(colon));
  }
  return QStringLiteral("参数有误：%1").arg(words);
}

int usageFault(const Streams& streams, const QString& description) {
  streams.err << description << QStringLiteral("。\n用 --help 查看用法。\n");
  return Usage;
}

}  // namespace

CommandLine::CommandLine(const QString& version) : m_version(version), m_commands(makeCommands()) {}

std::optional<int> CommandLine::parse(const QStringList& arguments, const Streams& streams) {
  CLI::App app("考勤管理的命令行工具", "attendancectl");
  localize(app);
  app.set_version_flag("--version", m_version.toStdString(), "显示版本")->group("选项");
  const CLI::Option* homeBefore = addHome(app, false);
  app.require_subcommand(0, 1);
  app.allow_extras();

  std::vector<std::vector<Bound>> bound(m_commands.size());
  std::vector<CLI::App*> parsers;
  std::vector<CLI::Option*> homesBehind;
  for (std::size_t i = 0; i < m_commands.size(); ++i) {
    CLI::App* parser =
        app.add_subcommand(m_commands[i]->name().toStdString(), m_commands[i]->summary().toStdString());
    parser->group("命令");
    localize(*parser);
    for (const Option& option : m_commands[i]->options()) {
      bound[i].push_back({option, addOption(*parser, option)});
    }
    homesBehind.push_back(addHome(*parser, m_commands[i]->needsNamedHome()));
    parsers.push_back(parser);
  }

  try {
    std::vector<std::string> backwards;
    for (auto text = arguments.crbegin(); text != arguments.crend(); ++text) {
      backwards.push_back(text->toStdString());
    }
    app.parse(backwards);
    refuseExtras(app);
    for (std::size_t i = 0; i < m_commands.size(); ++i) {
      if (!parsers[i]->parsed()) continue;
      m_chosen = m_commands[i].get();
      m_home = homeOf(homeBefore, homesBehind[i]);
      for (const Bound& option : bound[i]) refuseOptionAsValue(option, bound[i]);
      for (const Bound& option : bound[i]) store(option);
    }
    if (m_chosen == nullptr) throw UsageError(QStringLiteral("缺少命令"));
    const QString fault = m_chosen->usageFault();
    if (!fault.isEmpty()) throw UsageError(fault);
    if (m_chosen->needsNamedHome() && m_home.isEmpty() && qEnvironmentVariableIsEmpty("ATTENDANCE_HOME")) {
      throw UsageError(QStringLiteral("请用 --home 或环境变量 ATTENDANCE_HOME 给出目录"));
    }
  } catch (const CLI::CallForHelp&) {
    streams.out << QString::fromStdString(app.help());
    return Done;
  } catch (const CLI::CallForVersion&) {
    streams.out << QStringLiteral("attendancectl ") << m_version << '\n';
    return Done;
  } catch (const CLI::ParseError& error) {
    return usageFault(streams, translated(error));
  } catch (const UsageError& error) {
    return usageFault(streams, error.description());
  }
  return std::nullopt;
}

int CommandLine::run(const Streams& streams) {
  // A connection left open by an earlier run in this process may lead to another home.
  gConnection.reset();
  runtime::chooseAppPath(m_home);
  runtime::installOutputGuard(refuseOwnFile);
  int code = Failed;
  try {
    code = m_chosen->run(streams);
  } catch (const std::exception& error) {
    streams.err << QStringLiteral("失败：") << QString::fromUtf8(error.what()) << '\n';
  }
  gConnection.reset();
  return code;
}

}  // namespace cli
