// Colours the words of the calculator language in the program editor: the
// statement keywords, functions, constants and operators of the vocabulary
// tables, and comments.
#pragma once

#include <QRegularExpression>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <vector>

namespace lapdesk {

class ProgramHighlighter : public QSyntaxHighlighter {
    Q_OBJECT
  public:
    explicit ProgramHighlighter(QTextDocument* document);

    // The kind of word the highlighter sees at a position of a line, for
    // the tests: "keyword", "function", "constant", "operator", "comment", "".
    static QString KindAt(const QString& line, int position);

  protected:
    void highlightBlock(const QString& text) override;

  private:
    struct Rule {
        QString kind;
        QRegularExpression pattern;
    };
    struct Span {
        qsizetype start;
        qsizetype length;
        QString kind;
    };
    static const std::vector<Rule>& Rules();
    // The coloured spans of a line; where rules overlap the earlier rule wins.
    static std::vector<Span> Spans(const QString& line);
    static QTextCharFormat FormatOf(const QString& kind);
};

}  // namespace lapdesk
