#include "calculator/program_highlighter.h"

#include <QStringList>
#include <algorithm>

#include "expr/vocabulary.h"

namespace lapdesk {

namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

// Any of the words, any case; longer words first so "End If" wins over
// "End". Word-like entries must stand as whole words.
QRegularExpression WordPattern(QStringList words, bool whole, const QString& tail = QString()) {
    std::sort(words.begin(), words.end(),
              [](const QString& a, const QString& b) { return a.size() > b.size(); });
    for (QString& word : words)
        word = QRegularExpression::escape(word);
    const QString body = QStringLiteral("(?:") + words.join('|') + QStringLiteral(")");
    const QString pattern =
        whole ? QStringLiteral("(?<![\\w.])") + body + QStringLiteral("(?!\\w)") : body;
    return QRegularExpression(pattern + tail, QRegularExpression::CaseInsensitiveOption |
                                                  QRegularExpression::UseUnicodePropertiesOption);
}

// Start of the comment: the driver cuts a line at its last apostrophe.
qsizetype CommentStart(const QString& line) {
    return line.lastIndexOf('\'');
}

QString WithoutBracket(const std::string& name) {
    QString word = Q(name);
    if (word.endsWith('(')) word.chop(1);
    return word;
}

}  // namespace

ProgramHighlighter::ProgramHighlighter(QTextDocument* document) : QSyntaxHighlighter(document) {}

const std::vector<ProgramHighlighter::Rule>& ProgramHighlighter::Rules() {
    static const std::vector<Rule> rules = [] {
        const Vocabulary& v = GetVocabulary();
        // The words the analysis cuts statements at, beside the keywords.
        QStringList keywords{QStringLiteral("Then"), QStringLiteral("To"), QStringLiteral("Step")};
        for (const StatementKeyword& k : v.keywords)
            keywords << Q(k.word);
        QStringList functions;
        for (const ScalarFunction& f : v.scalarFunctions)
            functions << WithoutBracket(f.name);
        for (const MatrixFunction& f : v.matrixFunctions)
            functions << WithoutBracket(f.name);
        QStringList constants;
        for (const NamedConstant& c : v.constants)
            constants << Q(c.name);
        QStringList dotted;
        for (const CanonicalOperator& op : v.operators)
            dotted << Q(op.name);
        const QStringList spelled{QStringLiteral("And"), QStringLiteral("Or"),
                                  QStringLiteral("Not")};
        return std::vector<Rule>{
            {QStringLiteral("operator"), WordPattern(dotted, false)},
            {QStringLiteral("operator"), WordPattern(spelled, true)},
            {QStringLiteral("keyword"), WordPattern(keywords, true)},
            {QStringLiteral("function"),
             WordPattern(functions, true, QStringLiteral("(?=\\s*\\()"))},
            {QStringLiteral("constant"), WordPattern(constants, true)},
        };
    }();
    return rules;
}

QTextCharFormat ProgramHighlighter::FormatOf(const QString& kind) {
    QTextCharFormat format;
    if (kind == QLatin1String("keyword")) {
        format.setForeground(QColor(0, 0, 180));
        format.setFontWeight(QFont::Bold);
    } else if (kind == QLatin1String("function")) {
        format.setForeground(QColor(120, 0, 140));
    } else if (kind == QLatin1String("constant")) {
        format.setForeground(QColor(0, 120, 120));
    } else if (kind == QLatin1String("operator")) {
        format.setForeground(QColor(160, 80, 0));
    } else if (kind == QLatin1String("comment")) {
        format.setForeground(QColor(0, 128, 0));
        format.setFontItalic(true);
    }
    return format;
}

std::vector<ProgramHighlighter::Span> ProgramHighlighter::Spans(const QString& line) {
    std::vector<Span> spans;
    const qsizetype comment = CommentStart(line);
    const QString code = comment < 0 ? line : line.left(comment);
    auto overlaps = [&spans](qsizetype start, qsizetype end) {
        return std::any_of(spans.begin(), spans.end(), [&](const Span& s) {
            return start < s.start + s.length && s.start < end;
        });
    };
    for (const Rule& rule : Rules()) {
        auto matches = rule.pattern.globalMatch(code);
        while (matches.hasNext()) {
            const QRegularExpressionMatch m = matches.next();
            if (!overlaps(m.capturedStart(), m.capturedEnd())) {
                spans.push_back({m.capturedStart(), m.capturedLength(), rule.kind});
            }
        }
    }
    if (comment >= 0) spans.push_back({comment, line.size() - comment, QStringLiteral("comment")});
    return spans;
}

QString ProgramHighlighter::KindAt(const QString& line, int position) {
    for (const Span& span : Spans(line)) {
        if (position >= span.start && position < span.start + span.length) return span.kind;
    }
    return QString();
}

void ProgramHighlighter::highlightBlock(const QString& text) {
    for (const Span& span : Spans(text)) {
        setFormat(static_cast<int>(span.start), static_cast<int>(span.length), FormatOf(span.kind));
    }
}

}  // namespace lapdesk
