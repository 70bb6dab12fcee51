// The transform window's "ヘルプ" menu and its About box, which names the
// program, its version and its licence.
#pragma once

class QMainWindow;

namespace lapdesk {

// Adds the menu "ヘルプ" (HelpMenues) with "バージョン情報" (MenueAbout) to
// the window's menu bar. The item opens the About box (AboutBox) without
// blocking the window; OK closes it.
void AddHelpMenu(QMainWindow& window);

}  // namespace lapdesk
