// Parameter entry: the list of N and the T and gamma0 boxes, which take only
// numbers greater than 0.
#include <QAbstractButton>
#include <QListWidget>

#include "form_fixture.h"

namespace lapdesk::testing {
namespace {

using EntryTest = FormTest;

TEST_F(EntryTest, TheListOfNSetsNByClickOrEnterAndMarksTheDataInvalid) {
    RunProgram(QStringLiteral("Return 1/(p+1)\nEnd"));
    ASSERT_EQ(Text("ResultLb"), QStringLiteral("OK"));
    QTest::mouseClick(Find<QLabel>("WordNumberLb"), Qt::LeftButton);
    auto* list = Find<QListWidget>("WrdList");
    ASSERT_TRUE(list->isVisible());
    EXPECT_TRUE(list->hasFocus());
    EXPECT_EQ(list->currentItem()->text(), QStringLiteral("256")) << "opens on the present N";
    QListWidgetItem* choice = list->findItems(QStringLiteral("512"), Qt::MatchExactly).front();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(choice).center());
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(Text("WordNumberLb"), QStringLiteral("512"));
    EXPECT_EQ(form->driver().GetConditions().N, 512);
    EXPECT_EQ(Text("DataSourceLb"), QStringLiteral("Non"));
    EXPECT_EQ(Text("ResultLb"), QStringLiteral("Non"));

    // Enter takes the current entry and hides the list as well.
    QTest::mouseClick(Find<QLabel>("WordNumberLb"), Qt::LeftButton);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(Text("WordNumberLb"), QStringLiteral("1024"));
}

struct Entry {
    const char* label;
    const char* box;
};
const Entry kEntries[] = {{"TendLb", "TendText"}, {"Ganmalb", "GanmaText"}};

TEST_F(EntryTest, TheBoxesRejectNonNumbersAndValuesNotAboveZero) {
    for (const Entry& entry : kEntries) {
        QTest::mouseClick(Find<QLabel>(entry.label), Qt::LeftButton);
        auto* box = Find<QLineEdit>(entry.box);
        ASSERT_TRUE(box->isVisible()) << entry.box;
        EXPECT_EQ(box->text(), QStringLiteral("5")) << "opens with the present value";
        EXPECT_FALSE(Find<QWidget>("ButtonsFrame")->isVisible());
        for (const char* text : {"abc", "", "0", "-2", "0.0", "1e", "5x", "2+3j"}) {
            box->setText(QString::fromLatin1(text));
            QTest::keyClick(box, Qt::Key_Return);
            EXPECT_TRUE(box->isVisible()) << entry.box << " took \"" << text << "\"";
            EXPECT_TRUE(box->property("rejected").toBool()) << "marked: " << text;
            EXPECT_EQ(Text(entry.label), QStringLiteral("5")) << entry.box << " \"" << text << "\"";
            EXPECT_FALSE(Find<QWidget>("ButtonsFrame")->isVisible());
        }
        box->setText(QStringLiteral("2.5e0"));
        QTest::keyClick(box, Qt::Key_Return);
        EXPECT_FALSE(box->isVisible()) << entry.box;
        EXPECT_EQ(Text(entry.label), QStringLiteral("2.5")) << entry.box;
        EXPECT_TRUE(Find<QWidget>("ButtonsFrame")->isVisible());
    }
    const Conditions c = form->driver().GetConditions();
    EXPECT_EQ(c.T, 2.5);
    EXPECT_EQ(c.Gamma0, 2.5);
}

TEST_F(EntryTest, EscAndAClickElsewhereCancelTheEntry) {
    RunProgram(QStringLiteral("Return 1/(p+1)\nEnd"));
    for (const Entry& entry : kEntries) {
        QTest::mouseClick(Find<QLabel>(entry.label), Qt::LeftButton);
        auto* box = Find<QLineEdit>(entry.box);
        box->setText(QStringLiteral("-1"));
        QTest::keyClick(box, Qt::Key_Return);
        ASSERT_TRUE(box->property("rejected").toBool());
        QTest::keyClick(box, Qt::Key_Escape);
        EXPECT_FALSE(box->isVisible()) << entry.box;
        EXPECT_FALSE(box->property("rejected").toBool()) << "the mark goes with the box";
        EXPECT_TRUE(Find<QWidget>("ButtonsFrame")->isVisible());
        EXPECT_EQ(Text(entry.label), QStringLiteral("5"));
    }
    EXPECT_EQ(Text("ResultLb"), QStringLiteral("OK")) << "nothing was changed";
    EXPECT_EQ(Text("NowDispLb"), QStringLiteral("Res")) << "Esc in a box stops no drawing";

    // Opening the gamma0 box takes the focus from the T box, which closes.
    QTest::mouseClick(Find<QLabel>("TendLb"), Qt::LeftButton);
    Find<QLineEdit>("TendText")->setText(QStringLiteral("7"));
    QTest::mouseClick(Find<QLabel>("Ganmalb"), Qt::LeftButton);
    EXPECT_FALSE(Find<QWidget>("TendText")->isVisible());
    EXPECT_EQ(Text("TendLb"), QStringLiteral("5"));
    EXPECT_FALSE(Find<QWidget>("ButtonsFrame")->isVisible()) << "gamma0 is being typed";
    QTest::keyClick(Find<QLineEdit>("GanmaText"), Qt::Key_Return);
    EXPECT_TRUE(Find<QWidget>("ButtonsFrame")->isVisible());
    EXPECT_EQ(Text("ResultLb"), QStringLiteral("OK")) << "an unchanged value keeps the data";
}

TEST_F(EntryTest, TheHanningSwitchReachesTheTransform) {
    auto* check = Find<QAbstractButton>("HaningCheck");
    const QPoint box(8, check->height() / 2);
    QTest::mouseClick(check, Qt::LeftButton, {}, box);
    EXPECT_FALSE(form->driver().HaningOn());
    RunProgram(QStringLiteral("Return 1\nEnd"));
    EXPECT_NE(form->driver().Store()[kSampleRe].Values[128], 0.0) << "no taper at k = N/2";
    QTest::mouseClick(check, Qt::LeftButton, {}, box);
    EXPECT_TRUE(form->driver().HaningOn());
    RunProgram(QStringLiteral("Return 1\nEnd"));
    EXPECT_EQ(form->driver().Store()[kSampleRe].Values[128], 0.0);
}

}  // namespace
}  // namespace lapdesk::testing
