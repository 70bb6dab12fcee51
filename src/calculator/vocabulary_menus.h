// The menus that list the language's words (constants, statement keywords,
// functions, operators and logical functions), filled from the vocabulary
// tables. Each entry's object name is its menu's name and its index
// ("MenueFunction_0"); choosing it hands the word to insert to the sink.
#pragma once

#include <functional>

class QMenu;
class QMenuBar;

namespace lapdesk {

struct WordInsertion;

using WordSink = std::function<void(const WordInsertion&)>;

// Returns the statement keyword menu (MenueCtWord), which the window enables
// only while the program text has the focus.
QMenu* AddVocabularyMenus(QMenuBar* bar, const WordSink& insert);

}  // namespace lapdesk
