#pragma once

#include <functional>
#include <span>

#include <QLatin1String>
#include <QMainWindow>
#include <QStringView>

class frmMain;

/// One entry of the main window's menu tree.
struct MenuEntry {
  /// A free function: what opens a dialog stands in a file of its own and not in the window.
  using Handler = void (*)(frmMain& window);

  /// Name of the menu that holds the entry; empty for a top-level menu.
  QLatin1String parent;
  QLatin1String name;
  /// "-" for a separator.
  QStringView caption;
  /// What choosing the entry does; null for menus, separators and entries whose window is not there.
  Handler handler = nullptr;
};

/// The menu tree in its order; a menu stands before its entries.
[[nodiscard]] std::span<const MenuEntry> mainMenuTree();
/// The entry of that name, which must be in the tree.
[[nodiscard]] const MenuEntry& menuEntry(QLatin1String name);

/// The list's context menu: a top-level menu that the menu bar does not show.
inline constexpr QLatin1String popMenuName{"mnuPopMenu"};

/// Fills the window's menu bar with the tree: menus and actions bear their entry's name, and choosing one
/// runs `choose` with the entry.
void buildMainMenu(QMainWindow& window, const std::function<void(const MenuEntry&)>& choose);
