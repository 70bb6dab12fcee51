// The words the vocabulary and channel menus insert: which part of an entry's
// caption goes into the text box and how far the caret steps back after it,
// and the captions each menu lists, taken from the vocabulary tables.
#pragma once

#include <QString>
#include <QStringList>

namespace lapdesk {

struct Vocabulary;

struct WordInsertion {
    QString text;
    int back = 0;  // characters the caret moves back after inserting
};

// Constants, statement keywords and operators: the trimmed caption up to its
// first ",", else up to its first "：", else the whole trimmed caption.
WordInsertion ConstantWord(const QString& caption);
// Channel constants: the caption up to its ":".
WordInsertion DmConstantWord(const QString& caption);
// Functions: up to and including the first ")", trimmed; caret inside it.
WordInsertion FunctionWord(const QString& caption);
// Logical functions: the whole caption, trimmed on the left; caret two back.
WordInsertion BoolFunctionWord(const QString& caption);
// Channel entries: a caption with "(" before any ":" inserts the name with
// empty brackets and the caret inside; otherwise the text before ":",
// trimmed on the left.
WordInsertion ChannelWord(const QString& caption);

// Menu captions, one per entry, in table order.
QStringList ConstantCaptions(const Vocabulary& vocabulary);
QStringList KeywordCaptions(const Vocabulary& vocabulary);
QStringList OperatorCaptions(const Vocabulary& vocabulary);
QStringList FunctionCaptions(const Vocabulary& vocabulary);  // rows sharing a line are skipped
QStringList BoolFunctionCaptions(const Vocabulary& vocabulary);
// Matrix functions: "Name()：description"; the usage lines as tips.
QStringList MatrixFunctionCaptions(const Vocabulary& vocabulary);
QStringList MatrixFunctionTips(const Vocabulary& vocabulary);

// Blanks (U+0020 only) removed from the ends, as the menus trim captions.
QString TrimBlanks(const QString& s);
QString TrimLeftBlanks(const QString& s);

}  // namespace lapdesk
