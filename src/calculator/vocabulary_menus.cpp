#include "calculator/vocabulary_menus.h"

#include <QMenu>
#include <QMenuBar>

#include "calculator/menu_words.h"
#include "expr/vocabulary.h"

namespace lapdesk {

namespace {

// A caption as a menu shows it: "&" would otherwise mark a shortcut.
QString MenuText(const QString& caption) {
    QString text = caption;
    return text.replace('&', QStringLiteral("&&"));
}

void FillWordMenu(QMenu* menu, const QString& name, const QStringList& captions,
                  WordInsertion (*rule)(const QString&), const WordSink& insert) {
    menu->setObjectName(name);
    for (int k = 0; k < captions.size(); ++k) {
        QAction* entry = menu->addAction(MenuText(captions[k]));
        entry->setObjectName(QStringLiteral("%1_%2").arg(name).arg(k));
        QObject::connect(entry, &QAction::triggered, menu,
                         [insert, rule, caption = captions[k]] { insert(rule(caption)); });
    }
}

}  // namespace

QMenu* AddVocabularyMenus(QMenuBar* bar, const WordSink& insert) {
    const Vocabulary& v = GetVocabulary();
    FillWordMenu(bar->addMenu(QStringLiteral("定数(&C)")), QStringLiteral("MenueConst"),
                 ConstantCaptions(v), &ConstantWord, insert);
    QMenu* keywords = bar->addMenu(QStringLiteral("制御文(&S)"));
    FillWordMenu(keywords, QStringLiteral("MenueCtWord"), KeywordCaptions(v), &ConstantWord,
                 insert);

    QMenu* functions = bar->addMenu(QStringLiteral("関数(&U)"));
    FillWordMenu(functions, QStringLiteral("MenueFunction"), FunctionCaptions(v), &FunctionWord,
                 insert);
    functions->addSeparator();
    QMenu* matrix = functions->addMenu(QStringLiteral("行列関数"));
    FillWordMenu(matrix, QStringLiteral("MenueMatFunction"), MatrixFunctionCaptions(v),
                 &FunctionWord, insert);
    const QStringList tips = MatrixFunctionTips(v);
    matrix->setToolTipsVisible(true);
    for (int k = 0; k < tips.size(); ++k) {
        matrix->actions()[k]->setToolTip(tips[k]);
    }

    QMenu* logic = bar->addMenu(QStringLiteral("論理(&L)"));
    logic->setObjectName(QStringLiteral("MenueLogic"));
    FillWordMenu(logic->addMenu(QStringLiteral("比較・論理演算子")), QStringLiteral("BoolOp"),
                 OperatorCaptions(v), &ConstantWord, insert);
    FillWordMenu(logic->addMenu(QStringLiteral("論理関数")), QStringLiteral("MenueBoolFunc"),
                 BoolFunctionCaptions(v), &BoolFunctionWord, insert);
    return keywords;
}

}  // namespace lapdesk
