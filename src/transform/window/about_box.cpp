#include "transform/window/about_box.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

#include "version/version.h"

namespace lapdesk {

namespace {

QString AboutText() {
    return QStringLiteral(
               "<p><b>Laplace Desk</b> バージョン %1</p>"
               "<p>数値逆ラプラス変換と複素数電卓</p>"
               "<p>ライセンス：GNU 一般公衆利用許諾書 第3版またはそれ以降"
               "（GPL-3.0-or-later）<br>このプログラムは無保証です。</p>")
        .arg(QString::fromLatin1(kVersion));
}

void ShowAboutBox(QWidget* parent) {
    auto* box = new QMessageBox(QMessageBox::Information, QStringLiteral("バージョン情報"),
                                AboutText(), QMessageBox::Ok, parent);
    box->setObjectName(QStringLiteral("AboutBox"));
    box->setTextFormat(Qt::RichText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

}  // namespace

void AddHelpMenu(QMainWindow& window) {
    QMenu* help = window.menuBar()->addMenu(QStringLiteral("ヘルプ"));
    help->setObjectName(QStringLiteral("HelpMenues"));
    QAction* about = help->addAction(QStringLiteral("バージョン情報"));
    about->setObjectName(QStringLiteral("MenueAbout"));
    QObject::connect(about, &QAction::triggered, &window, [&window] { ShowAboutBox(&window); });
}

}  // namespace lapdesk
