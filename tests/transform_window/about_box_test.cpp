// The transform window's Help menu: its About box names the version the
// build was given and the licence, and OK closes it.
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "form_fixture.h"
#include "version/version.h"

namespace lapdesk::testing {
namespace {

using AboutTest = FormTest;

TEST_F(AboutTest, HelpMenuShowsVersionAndLicence) {
    QAction* about = Action("MenueAbout");
    EXPECT_TRUE(Find<QMenu>("HelpMenues")->actions().contains(about));
    about->trigger();
    QPointer<QMessageBox> box = Find<QMessageBox>("AboutBox");
    ASSERT_FALSE(box.isNull());
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(box->windowTitle(), QStringLiteral("バージョン情報"));
    EXPECT_TRUE(box->text().contains(QStringLiteral("バージョン %1").arg(kVersion)))
        << box->text().toStdString();
    EXPECT_TRUE(box->text().contains(QStringLiteral("GPL-3.0-or-later")));

    box->button(QMessageBox::Ok)->click();
    EXPECT_TRUE(QTest::qWaitFor([&box] { return box.isNull(); })) << "OK leaves the box open";
}

}  // namespace
}  // namespace lapdesk::testing
