"""Tests of scripts/check_house.py: a small project that keeps the rules, and for each check an offence planted in it."""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "scripts"))

import check_house  # noqa: E402
from house.document import written  # noqa: E402
from house.functions import functions_of  # noqa: E402
from house.rooms import BadList, Rooms  # noqa: E402
from house.sources import Source  # noqa: E402

ROOMS = """
room: base
what: values
folder: platform/base
kind: core
includes:
holds: clock

room: tables
what: rows
folder: tables
kind: core
includes: base
holds: sql

room: boxes
what: a seam
folder: boxes
kind: core
includes: base

room: boxes_qt
what: its windows
folder: boxes
files: Qt*.*
kind: widgets
includes: boxes base
holds: boxes

room: pictures
what: pictures
folder: pictures
kind: gui
includes: base

room: apps
what: a program
folder: apps
kind: programs
includes: *
holds: sqlite
"""
DOCUMENT = """# House

## Rooms

| old |
|---|

## Who may include whom

| old |
|---|

## Decisions
"""
FILES = {
    "platform/base/Clock.cpp": '#include "base/Clock.h"\nlong now() { return time(nullptr); }\n',
    "platform/base/Clock.h": "#include <QString>\n/// SELECT of QMessageBox is only a comment, as is sqlite.\nlong now();\n",
    "tables/Rows.cpp": '#include "base/Clock.h"\nconst char* sql() { return "SELECT * FROM Rows"; }\n',
    "boxes/Seam.h": "void box();\n",
    "boxes/QtSeam.cpp": '#include <QMessageBox>\n#include "boxes/Seam.h"\nvoid box() { QMessageBox::about(); }\n',
    "pictures/Picture.h": "#include <QImage>\n",
    "apps/one/main.cpp": '#include "boxes/Seam.h"\nint main() { SqlCipher; }\n',
}


class Project(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.root = pathlib.Path(directory.name)
        for name, text in FILES.items():
            self.put(name, text)
        self.list(ROOMS)

    def put(self, name, text):
        path = self.root / "src" / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def list(self, text):
        self.put("rooms.txt", text)
        (self.root / "ARCHITECTURE.md").write_text(written(DOCUMENT, Rooms(text)), encoding="utf-8")

    def findings(self):
        return check_house.findings(self.root)

    def assert_found(self, *words):
        found = self.findings()
        self.assertEqual(len(found), 1, found)
        for word in words:
            self.assertIn(word, found[0])

    def test_what_keeps_the_rules_is_left_alone(self):
        self.assertEqual(self.findings(), [])

    def test_upward_and_foreign_includes(self):
        self.put("platform/base/Up.h", '#include "tables/Rows.h"\n')
        self.put("tables/Rows.h", "")
        self.assert_found("base may not include tables")
        self.put("platform/base/Up.h", '#include "nowhere/Rows.h"\n')
        self.assert_found("nowhere/Rows.h", "in no room")
        self.put("platform/base/Up.h", '#include "apps/one/Main.h"\n')
        self.put("apps/one/Main.h", "")
        self.assert_found("base may not include apps")

    def test_a_half_of_a_room_does_not_include_the_other(self):
        self.put("boxes/QtHost.h", "")
        self.put("boxes/Other.cpp", '#include "boxes/QtHost.h"\n')
        self.assert_found("boxes/Other.cpp", "boxes may not include boxes_qt")

    def test_more_of_the_toolkit_than_the_kind_of_the_room(self):
        self.put("tables/Picture.h", "#include <QImage>\n")
        self.assert_found("<QImage>", "core")
        self.put("tables/Picture.h", "#include <QtGui/qimage.h>\n")
        self.assert_found("qimage.h")
        (self.root / "src/tables/Picture.h").unlink()
        self.put("pictures/Picture.h", "#include <QLabel>\n")
        self.assert_found("<QLabel>", "gui")

    def test_sql_outside_its_rooms(self):
        for text in ("SELECT * FROM Rows", "select a from Rows", "INSERT INTO Rows(A) VALUES(1)", "delete from Rows",
                     "UPDATE Rows SET A=1", " WHERE A=1", "CREATE TABLE Rows(A)", " ORDER BY A"):
            for literal in (f'QStringLiteral("{text}")', f'"\\"" R"({text})"'):
                self.put("pictures/Ask.cpp", f"\nauto x = {literal};\n")
                self.assert_found("pictures/Ask.cpp:2", "sql", "ask a room")
        self.put("pictures/Ask.cpp", 'auto x = "Selected rows, 1 update from here"; // SELECT * FROM Rows\n')
        self.assertEqual(self.findings(), [])

    def test_words_of_an_engine_outside_its_room(self):
        for code in ('"PRAGMA key"', '"TEXT COLLATE NOCASE"', '"strftime(%Y)"', '"AUTOINCREMENT"', "SqlCipherEngine()",
                     '"sqlite_master"', '"typeof(c)"', "sqlite3_open()"):
            self.put("tables/Engine.cpp", f"auto x = {code};\n")
            self.assert_found("tables/Engine.cpp:1", "is sqlite")
        self.put("tables/Engine.cpp", "#include <sqlcipher/sqlite3.h>\n")
        self.assert_found("sqlcipher/sqlite3.h")
        for code in ("PQexec(1)", '"A BYTEA"', '"pg_class"', "PostgresLink()", '"INSERT RETURNING A"'):
            self.put("tables/Engine.cpp", f"auto x = {code};\n")
            self.assert_found("tables/Engine.cpp:1", "is postgres")

    def test_boxes_and_the_clock(self):
        self.put("boxes/Other.cpp", "void ask() { QFileDialog box; }\n")
        self.assert_found("QFileDialog", "dialogs/Dialogs.h")
        self.put("boxes/Other.cpp", "auto now = QDateTime::currentDateTime();\n")
        self.assert_found("currentDateTime", "runtime/Clock.h")
        self.put("boxes/Other.cpp", "auto now = time(nullptr);\n")
        self.assert_found("runtime/Clock.h")

    def test_long_files_and_functions(self):
        self.put("tables/Long.cpp", "int a;\n" * 400)
        self.assertEqual(self.findings(), [])
        self.put("tables/Long.cpp", "int a;\n" * 401)
        self.assert_found("tables/Long.cpp", "401 lines")
        self.put("tables/Long.cpp", "int a;\n\nint f() {\n" + "  f();\n" * 58 + "}\n")
        self.assertEqual(self.findings(), [])
        self.put("tables/Long.cpp", "int a;\n\nint f() {\n" + "  f();\n" * 59 + "}\n")
        self.assert_found("tables/Long.cpp:3", "f has 61 lines")

    def test_rings(self):
        self.put("tables/A.h", "")
        self.put("tables/A.cpp", '#include "tables/B.h"\n')
        self.put("tables/B.h", '#include "tables/A.h"\n')
        self.assertEqual(self.findings(), [], "two may")
        self.put("tables/B.cpp", '#include "tables/C.h"\n')
        self.put("tables/C.h", '#include "tables/A.h"\n')
        self.assert_found("3 units", "tables/A, tables/B, tables/C")

    def test_files_in_no_room_and_rooms_without_files(self):
        self.put("attic/Old.h", "")
        self.assert_found("attic/Old.h", "in no room")
        (self.root / "src/attic/Old.h").unlink()
        self.list(ROOMS + "room: empty\nwhat: nothing\nfolder: empty\nkind: core\n")
        self.assert_found("room empty has no files")

    def test_the_tables_of_the_document(self):
        self.put("rooms.txt", ROOMS.replace("what: rows", "what: records"))
        self.assert_found("ARCHITECTURE.md", "--write")
        self.put("rooms.txt", ROOMS.replace("includes: base\nholds: sql", "includes: base boxes\nholds: sql"))
        self.assert_found("ARCHITECTURE.md", "--write")

    def test_allowances_hold_for_their_check_and_file_and_end(self):
        self.put("pictures/Ask.cpp", 'auto x = "SELECT 1";\n')
        self.list(ROOMS + "allow sql src/pictures/Ask.cpp\n")
        self.assertEqual(self.findings(), [])
        self.put("pictures/Ask.cpp", 'auto x = "SELECT 1 COLLATE A";\n')
        self.assert_found("is sqlite")
        self.put("pictures/Ask.cpp", "")
        self.assert_found("allow sql src/pictures/Ask.cpp", "not needed any more")

    def test_a_list_that_makes_no_sense(self):
        for bad in ("", "what: nothing", "room: a\nwhat: x\nfolder: a\nkind: huge", "room: a\nfolder: a\nkind: core",
                    ROOMS + "includes: nobody", ROOMS + "colour: red", ROOMS + "allow sql", ROOMS + "nonsense"):
            with self.assertRaises(BadList, msg=bad):
                Rooms(bad)
        self.put("rooms.txt", ROOMS + "nonsense\n")
        self.assert_found("line", "of the list of rooms")


class Functions(unittest.TestCase):
    def spans(self, text):
        with tempfile.TemporaryDirectory() as directory:
            path = pathlib.Path(directory) / "Some.cpp"
            path.write_text(text, encoding="utf-8")
            return [(one.name, one.first, one.last) for one in functions_of(Source(path.parent, path))]

    def test_heads_of_every_kind(self):
        self.assertEqual(self.spans("""namespace a::b {
namespace {
template <typename T, typename = std::enable_if_t<(sizeof(T) > 1)>>
auto one(T&& t) -> decltype(t()) {
  return t();
}
}  // namespace
class [[nodiscard]] C final : public B<void()> {
 public:
  explicit C(int x) : m_a{x}, m_b(1), m_c{{1, 2}} { go(); }
  ~C() override;
  bool operator<(const C& other) const noexcept { return true; }
  [[nodiscard]] int size() const override {
    return 0;
  }

 private:
  int m_a{0};
  std::function<void()> m_f = [] { go(); };
};
C::~C() {
  auto f = [this](int a) {
    if (a) { return; }
  };
}
void C::operator()(int a) { go(); }
std::pair<int, int> C::both(
    int a, std::vector<int> b = {1, 2}) const {
  return {a, b[0]};
}
}  // namespace a::b
extern "C" int main() {
  return 0;
}
"""), [("one", 3, 6), ("C", 10, 10), ("operator<", 12, 12), ("size", 13, 15), ("~C", 21, 25), ("operator()", 26, 26),
            ("both", 27, 30), ("main", 32, 34)])

    def test_what_is_no_function(self):
        self.assertEqual(self.spans("""constexpr std::array names = {one(1), two{2}};
enum class E : int { A = f(1), B };
struct S {
  int a = f({1, 2});
};
const auto table = std::to_array<Row>({{u"{", '}', 1'000}, {R"({)", '"', 2}});
#define BODY(x) \\
  void x() { \\
  }
// void commented() {
/* void commented() {
*/
void real() { "}"; }
"""), [("real", 13, 13)])


if __name__ == "__main__":
    unittest.main()
