#include "calculator/menu_words.h"

#include "expr/vocabulary.h"

namespace lapdesk {

namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

// A comment line of the matrix table without its apostrophe and indent.
QString WithoutCommentMark(const std::string& line) {
    QString text = Q(line);
    if (text.startsWith('\'')) text.remove(0, 1);
    return TrimBlanks(text);
}

}  // namespace

QString TrimLeftBlanks(const QString& s) {
    qsizetype start = 0;
    while (start < s.size() && s[start] == ' ')
        ++start;
    return s.mid(start);
}

QString TrimBlanks(const QString& s) {
    QString left = TrimLeftBlanks(s);
    qsizetype end = left.size();
    while (end > 0 && left[end - 1] == ' ')
        --end;
    return left.left(end);
}

WordInsertion ConstantWord(const QString& caption) {
    const QString trimmed = TrimBlanks(caption);
    qsizetype cut = trimmed.indexOf(',');
    if (cut < 0) cut = trimmed.indexOf(QStringLiteral("："));
    return {cut < 0 ? trimmed : trimmed.left(cut), 0};
}

WordInsertion DmConstantWord(const QString& caption) {
    const qsizetype colon = caption.indexOf(':');
    return {colon < 0 ? caption : caption.left(colon), 0};
}

WordInsertion FunctionWord(const QString& caption) {
    const qsizetype close = caption.indexOf(')');
    if (close < 0) return {TrimBlanks(caption), 0};
    return {TrimBlanks(caption.left(close + 1)), 1};
}

WordInsertion BoolFunctionWord(const QString& caption) {
    return {TrimLeftBlanks(caption), 2};
}

WordInsertion ChannelWord(const QString& caption) {
    const qsizetype colon = caption.indexOf(':');
    const qsizetype open = caption.indexOf('(');
    if (open >= 0 && (colon < 0 || open < colon)) {
        return {TrimLeftBlanks(caption.left(open)) + QStringLiteral("()"), 1};
    }
    return {TrimLeftBlanks(colon < 0 ? caption : caption.left(colon)), 0};
}

QStringList ConstantCaptions(const Vocabulary& vocabulary) {
    QStringList captions;
    for (const std::string& help : vocabulary.constantHelp)
        captions << Q(help);
    return captions;
}

QStringList KeywordCaptions(const Vocabulary& vocabulary) {
    QStringList captions;
    for (const std::string& text : vocabulary.keywordMenu)
        captions << Q(text);
    return captions;
}

QStringList OperatorCaptions(const Vocabulary& vocabulary) {
    QStringList captions;
    for (const CanonicalOperator& op : vocabulary.operators)
        captions << Q(op.help);
    return captions;
}

QStringList FunctionCaptions(const Vocabulary& vocabulary) {
    QStringList captions;
    for (const ScalarFunction& function : vocabulary.scalarFunctions) {
        if (!function.help.empty()) captions << Q(function.help);
    }
    return captions;
}

QStringList BoolFunctionCaptions(const Vocabulary& vocabulary) {
    // The blank inside the brackets is where the caret lands (two back).
    QStringList captions;
    for (const ScalarFunction& function : vocabulary.scalarFunctions) {
        if (!function.code) captions << Q(function.name) + QStringLiteral(" )");
    }
    return captions;
}

QStringList MatrixFunctionCaptions(const Vocabulary& vocabulary) {
    QStringList captions;
    for (const MatrixFunction& function : vocabulary.matrixFunctions) {
        captions << Q(function.name) + QStringLiteral(")：") +
                        WithoutCommentMark(function.description);
    }
    return captions;
}

QStringList MatrixFunctionTips(const Vocabulary& vocabulary) {
    QStringList tips;
    for (const MatrixFunction& function : vocabulary.matrixFunctions) {
        tips << WithoutCommentMark(function.usage);
    }
    return tips;
}

}  // namespace lapdesk
