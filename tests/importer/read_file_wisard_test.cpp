// The import wizard driven by object name: each showing is answered by a
// script that runs once the dialog is up, as a person would answer it.
#include "importer/read_file_wisard.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <functional>
#include <optional>
#include <string>

#include "fileio/text_codec.h"
#include "importer/import_preview.h"
#include "temp_folder.h"
#include "transform/ldt_file.h"

namespace lapdesk {
namespace {

using testing_support::TempFolder;
using testing_support::WriteBytes;

class WisardTest : public ::testing::Test {
  protected:
    // A question is answered by readAnyway; without one it is a failure.
    WisardTest() {
        wisard.SetAsker([this](QWidget*, const QString& text) {
            questions << text;
            if (!readAnyway) ADD_FAILURE() << "unexpected question: " << text.toStdString();
            return readAnyway.value_or(false);
        });
    }

    template <typename T>
    T* Find(const char* name) {
        T* found = wisard.findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << "no control named " << name;
        return found;
    }
    QListWidget* List(const char* name) { return Find<QListWidget>(name); }

    QStringList Rows(const char* name) {
        QStringList rows;
        QListWidget* list = List(name);
        for (int k = 0; k < list->count(); ++k)
            rows << list->item(k)->text();
        return rows;
    }
    QString Selected(const char* name) {
        const QList<QListWidgetItem*> chosen = List(name)->selectedItems();
        return chosen.isEmpty() ? QString() : chosen.front()->text();
    }

    // A file of the given lines; its name goes into FileNameLb.
    void UseFile(const std::string& text, const std::string& name = "table.txt") {
        WriteBytes(folder / name, text);
        wisard.labels().FileNameLb = QString::fromStdString((folder / name).string());
    }

    // The answers the lists and the delimiter show.
    QStringList Shown() {
        return {Selected("SpecialRow"), Selected("TopRow"), Selected("TopColumn"),
                Find<QComboBox>("DelimiterList")->currentText()};
    }
    QStringList Kept() {
        const WisardLabels& labels = wisard.labels();
        return {QString::number(labels.SpecialLb), QString::number(labels.TopRowLb),
                QString::number(labels.TopColumnLb), labels.DelmLb};
    }

    // Shows the wizard; the answer runs once it is up and must close it.
    bool Show(const std::function<void()>& answer) {
        answered = false;
        QMetaObject::Connection once;
        once = QObject::connect(
            &wisard, &ReadFileWisard::activated, &wisard,
            [this, answer, &once] {
                QObject::disconnect(once);
                answered = true;
                answer();
                if (wisard.isVisible()) {
                    ADD_FAILURE() << "the answer left the wizard open";
                    wisard.ButtonCalcel_Click();
                }
            },
            Qt::QueuedConnection);
        const bool accepted = wisard.ShowModal();
        QObject::disconnect(once);
        return accepted;
    }

    void ClickRow(const char* name, int row) {
        QListWidget* list = List(name);
        list->scrollToItem(list->item(row));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(row)).center());
    }
    void ClickOk() { QTest::mouseClick(Find<QPushButton>("ButtonOk"), Qt::LeftButton); }
    void ClickCancel() { QTest::mouseClick(Find<QPushButton>("ButtonCalcel"), Qt::LeftButton); }

    TempFolder folder;
    ReadFileWisard wisard;
    bool answered = false;
    QStringList questions;
    std::optional<bool> readAnyway;
};

// A data file as the transform window saves it: N = 128 samples of 1/(s+1).
std::string SavedDataFile() {
    TransformDriver driver;
    driver.SetWordNumber("128");
    driver.MakeData([](const Complex& s) { return CplDiv({1, 0}, CplAdd(s, {1, 0})); });
    return Utf8ToCp932(TransformFileText(driver, "F = 1 / (p + 1)")).text;
}

TEST_F(WisardTest, PreviewsTheFileAndOffersLinesAndColumns) {
    UseFile("Word Number,  Tend ,  Ganma\r\n    128    ,  5.000E+00 ,   5.0\r\n1,2\r\n");
    QStringList preview, lines, parameterLines, columns;
    bool noted = true;
    EXPECT_TRUE(Show([&] {
        noted = Find<QLabel>("PreviewNote")->isVisible();
        preview = Rows("SampleList");
        lines = Rows("TopRow");
        parameterLines = Rows("SpecialRow");
        columns = Rows("TopColumn");
        ClickOk();
    }));
    EXPECT_EQ(preview, (QStringList{"001|Word Number,  Tend ,  Ganma",
                                    "002|    128    ,  5.000E+00 ,   5.0", "003|1,2"}));
    EXPECT_EQ(lines, (QStringList{"1", "2", "3"}));
    EXPECT_EQ(parameterLines, lines);
    EXPECT_EQ(columns, (QStringList{"1", "2", "3", "4", "5"}));
    EXPECT_FALSE(noted) << "the whole file is shown";
    EXPECT_EQ(Rows("SampleList"), QStringList()) << "closing clears the preview";
}

TEST_F(WisardTest, ReadsCp932Files) {
    UseFile("\x83\x66\x81\x5b\x83\x5e\r\n");  // "データ" in cp932
    QStringList preview;
    Show([&] {
        preview = Rows("SampleList");
        ClickCancel();
    });
    EXPECT_EQ(preview, QStringList{QStringLiteral("001|データ")});
}

TEST_F(WisardTest, ShowsOnlyTheFirst200LinesOfALongFile) {
    std::string text;
    for (int n = 1; n <= 300; ++n)
        text += std::to_string(n) + ",0\r\n";
    UseFile(text);
    QStringList preview, lines;
    QString note;
    Show([&] {
        preview = Rows("SampleList");
        lines = Rows("TopRow");
        if (Find<QLabel>("PreviewNote")->isVisible()) note = Find<QLabel>("PreviewNote")->text();
        ClickCancel();
    });
    EXPECT_TRUE(note.contains(QStringLiteral("300 行"))) << note.toStdString();
    ASSERT_EQ(preview.size(), 200);
    EXPECT_EQ(preview.back(), QStringLiteral("200|200,0"));
    ASSERT_EQ(lines.size(), 200);
    EXPECT_EQ(lines.back(), QStringLiteral("200"));
}

TEST_F(WisardTest, SelectsTheKeptAnswersAndKeepsNewOnes) {
    std::string text;
    for (int n = 1; n <= 20; ++n)
        text += "0;0;0;0\r\n";
    UseFile(text);
    QStringList selected;
    EXPECT_TRUE(Show([&] {
        selected = {Selected("SpecialRow"), Selected("TopRow"), Selected("TopColumn"),
                    Find<QComboBox>("DelimiterList")->currentText()};
        ClickRow("SpecialRow", 0);
        ClickRow("TopRow", 9);
        ClickRow("TopColumn", 2);
        Find<QComboBox>("DelimiterList")->setCurrentIndex(2);
        emit Find<QComboBox>("DelimiterList")->activated(2);
        ClickOk();
    }));
    EXPECT_EQ(selected, (QStringList{"2", "4", "1", ","})) << "the answers that read a saved file";
    const WisardLabels& labels = wisard.labels();
    EXPECT_EQ(labels.SpecialLb, 1);
    EXPECT_EQ(labels.TopRowLb, 10);
    EXPECT_EQ(labels.TopColumnLb, 3);
    EXPECT_EQ(labels.DelmLb, QStringLiteral(";"));

    Show([&] {
        selected = {Selected("SpecialRow"), Selected("TopRow"), Selected("TopColumn"),
                    Find<QComboBox>("DelimiterList")->currentText()};
        ClickCancel();
    });
    EXPECT_EQ(selected, (QStringList{"1", "10", "3", ";"})) << "kept from the last use";
}

TEST_F(WisardTest, MarksTheChosenLinesInThePreview) {
    std::string text;
    for (int n = 1; n <= 12; ++n)
        text += "0,0\r\n";
    UseFile(text);
    auto marks = [this] {
        QStringList marked;
        QListWidget* preview = List("SampleList");
        for (int row = 0; row < preview->count(); ++row) {
            const QBrush brush = preview->item(row)->background();
            if (brush.style() != Qt::NoBrush) marked << QString::number(row + 1);
        }
        return marked;
    };
    QStringList atStart, afterChoice;
    QColor parameterColour, dataColour;
    Show([&] {
        atStart = marks();
        parameterColour = List("SampleList")->item(1)->background().color();
        dataColour = List("SampleList")->item(3)->background().color();
        ClickRow("TopRow", 9);
        afterChoice = marks();
        ClickCancel();
    });
    EXPECT_EQ(atStart, (QStringList{"2", "4"}));
    EXPECT_NE(parameterColour, dataColour);
    EXPECT_EQ(afterChoice, (QStringList{"2", "10"}));
}

// The space is offered as a word that can be seen, and chosen or typed it
// stands for one space again.
TEST_F(WisardTest, TheSpaceDelimiterIsShownAsAWord) {
    UseFile("1 2\r\n");
    wisard.labels().DelmLb = QStringLiteral(" ");
    QString shown;
    EXPECT_TRUE(Show([&] {
        QComboBox* delimiters = Find<QComboBox>("DelimiterList");
        shown = delimiters->currentText();
        delimiters->setCurrentIndex(1);
        emit delimiters->activated(1);
        delimiters->setCurrentIndex(0);
        emit delimiters->activated(0);
        ClickOk();
    }));
    EXPECT_EQ(shown, QStringLiteral("スペース"));
    EXPECT_EQ(wisard.labels().DelmLb, QStringLiteral(" "));

    wisard.labels().DelmLb = QStringLiteral(",");
    EXPECT_TRUE(Show([&] {
        QLineEdit* typed = Find<QComboBox>("DelimiterList")->lineEdit();
        typed->setText(QStringLiteral("スペース"));
        emit typed->returnPressed();
        ClickOk();
    }));
    EXPECT_EQ(wisard.labels().DelmLb, QStringLiteral(" ")) << "typed as the word";
}

TEST_F(WisardTest, AnEmptyFileGivesEmptyListsAndKeepsTheAnswers) {
    UseFile("");
    QStringList lines, columns;
    EXPECT_TRUE(Show([&] {
        lines = Rows("TopRow");
        columns = Rows("TopColumn");
        ClickOk();
    }));
    EXPECT_TRUE(lines.isEmpty());
    EXPECT_EQ(columns.size(), 5);
    EXPECT_EQ(wisard.labels().TopRowLb, 4);
    EXPECT_EQ(wisard.labels().SpecialLb, 2);
}

TEST_F(WisardTest, FocusAloneChangesNoAnswer) {
    UseFile("a\r\nb\r\n");  // the kept first data line 4 is not offered
    Show([&] {
        List("TopRow")->setFocus();
        QTest::keyClick(List("TopRow"), Qt::Key_Tab);
        ClickCancel();
    });
    EXPECT_EQ(wisard.labels().TopRowLb, 4);
}

TEST_F(WisardTest, CancelEscAndCloseLeaveTheFlagReset) {
    UseFile("1,2\r\n");
    EXPECT_TRUE(Show([&] { ClickOk(); }));
    EXPECT_TRUE(wisard.labels().OkFlagLb);
    const struct {
        const char* how;
        std::function<void()> close;
    } rows[] = {
        {"Cancel", [&] { ClickCancel(); }},
        {"Esc", [&] { QTest::keyClick(&wisard, Qt::Key_Escape); }},
        {"close box", [&] { wisard.close(); }},
    };
    for (const auto& row : rows) {
        EXPECT_FALSE(Show(row.close)) << row.how;
        EXPECT_FALSE(wisard.labels().OkFlagLb) << row.how;
    }
}

TEST_F(WisardTest, AFileThatCannotBeReadClosesAtOnce) {
    UseFile("1,2\r\n");
    EXPECT_TRUE(Show([&] { ClickOk(); }));
    wisard.labels().FileNameLb = QString::fromStdString((folder / "missing.txt").string());
    EXPECT_FALSE(Show([] {}));
    EXPECT_FALSE(answered) << "the dialog never showed";
    EXPECT_FALSE(wisard.labels().OkFlagLb);
    EXPECT_FALSE(wisard.ReadFailure().isEmpty()) << "the reason is kept for the caller";
}

TEST_F(WisardTest, EnterConfirmsATypedDelimiterWithoutClosing) {
    UseFile("1:2\r\n");
    bool openAfterEnter = false;
    EXPECT_TRUE(Show([&] {
        // Keys go to the focused control of the active window.
        wisard.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&wisard));
        QLineEdit* typed = Find<QComboBox>("DelimiterList")->lineEdit();
        typed->setFocus();
        typed->clear();
        QTest::keyClicks(typed, QStringLiteral(":"));
        QTest::keyClick(typed, Qt::Key_Return);
        openAfterEnter = wisard.isVisible();
        List("TopRow")->setFocus();
        QTest::keyClick(List("TopRow"), Qt::Key_Return);
    }));
    EXPECT_TRUE(openAfterEnter);
    EXPECT_EQ(wisard.labels().DelmLb, QStringLiteral(":"));
}

TEST_F(WisardTest, OffersChannelsOnlyWhenAsked) {
    UseFile("1,2\r\n");
    bool shownByDefault = true;
    Show([&] {
        shownByDefault = List("ChnoList")->isVisible();
        ClickCancel();
    });
    EXPECT_FALSE(shownByDefault);

    wisard.ShowChannelList(true);
    wisard.labels().MaxColumnLb = 3;
    QStringList channels;
    Show([&] {
        channels = Rows("ChnoList");
        ClickRow("ChnoList", 2);
        ClickOk();
    });
    EXPECT_EQ(channels, (QStringList{"1", "2", "3"}));
    EXPECT_EQ(wisard.labels().ChnoLb, 3);
}

// A saved data file is known by its first line, whatever its name, and shows
// the answers that read it back; the answers kept from other files return
// with the next one.
TEST_F(WisardTest, ASavedDataFileGetsItsAnswersWhateverWasKept) {
    std::string table = "my table\r\n";
    for (int n = 1; n <= 20; ++n)
        table += "0.5;1;2;3\r\n";
    WriteBytes(folder / "table.txt", table);
    std::string trimmed = SavedDataFile();
    trimmed.replace(trimmed.find("Ganma \r\n"), 8, "Ganma\r\n");
    WriteBytes(folder / "saved.Ldt", SavedDataFile());
    WriteBytes(folder / "copy.txt", trimmed);

    UseFile(table);
    EXPECT_TRUE(Show([&] {
        ClickRow("SpecialRow", 1);
        ClickRow("TopRow", 9);
        ClickRow("TopColumn", 2);
        Find<QComboBox>("DelimiterList")->setCurrentIndex(2);
        emit Find<QComboBox>("DelimiterList")->activated(2);
        ClickOk();
    }));
    const QStringList tableAnswers{"2", "10", "3", ";"};
    const QStringList savedAnswers{"2", "4", "1", ","};
    ASSERT_EQ(Kept(), tableAnswers);

    const struct {
        const char* file;
        QStringList shown;
        bool noted;
    } showings[] = {
        {"saved.Ldt", savedAnswers, true},
        {"table.txt", tableAnswers, false},
        {"copy.txt", savedAnswers, true},
        {"saved.Ldt", savedAnswers, true},
    };
    for (const auto& showing : showings) {
        wisard.labels().FileNameLb = QString::fromStdString((folder / showing.file).string());
        QStringList shown;
        bool noted = !showing.noted;
        EXPECT_TRUE(Show([&] {
            shown = Shown();
            noted = Find<QLabel>("SavedFileNote")->isVisible();
            ClickOk();
        })) << showing.file;
        EXPECT_EQ(shown, showing.shown) << showing.file;
        EXPECT_EQ(Kept(), showing.shown) << showing.file << ": the caller reads these";
        EXPECT_EQ(noted, showing.noted) << showing.file;
    }

    EXPECT_TRUE(questions.isEmpty()) << questions.join("\n").toStdString();
}

// A click on a preview line sets the first data line, or the parameter line
// when that is chosen beside the preview; the number lists follow.
TEST_F(WisardTest, APreviewClickSetsTheChosenAnswer) {
    std::string text;
    for (int n = 1; n <= 12; ++n)
        text += "0,1,2\r\n";
    UseFile(text);
    bool dataLineByDefault = false;
    QStringList afterFirst, afterSecond;
    Show([&] {
        dataLineByDefault = Find<QRadioButton>("ClickSetsTopRow")->isChecked();
        ClickRow("SampleList", 6);
        afterFirst = QStringList{Selected("SpecialRow"), Selected("TopRow")} + Kept().mid(0, 2);
        QTest::mouseClick(Find<QRadioButton>("ClickSetsSpecial"), Qt::LeftButton);
        ClickRow("SampleList", 2);
        afterSecond = QStringList{Selected("SpecialRow"), Selected("TopRow")} + Kept().mid(0, 2);
        ClickCancel();
    });
    EXPECT_TRUE(dataLineByDefault);
    EXPECT_EQ(afterFirst, (QStringList{"2", "7", "2", "7"}));
    EXPECT_EQ(afterSecond, (QStringList{"3", "7", "3", "7"}));
}

// Answers that do not fit the file are questioned before the dialog closes:
// going back leaves it open with nothing read, reading anyway closes it.
TEST_F(WisardTest, QuestionsAnswersThatDoNotFitTheFile) {
    const std::string indexed =
        "k re im\r\n128 5 5\r\n0 0.5 0.1\r\n1 0.4 0.2\r\n2 0.3 0.3\r\n3 0.2 0.1\r\n";
    const struct {
        const char* name;
        std::string file;
        ReadAnswers answers;
        const char* questionPart;
    } rows[] = {
        {"header as parameters",
         "Word Number\r\n128,5,5\r\nRe,Im\r\n0.5,0.1\r\n",
         {1, 4, 1, ","},
         "パラメータ行（1 行目）"},
        {"index column", indexed, {2, 3, 1, " "}, "次の 2 列目"},
        {"wrong delimiter", indexed, {2, 3, 2, ","}, "区切り文字「スペース」なら読めます"},
    };
    for (const auto& row : rows) {
        UseFile(row.file);
        WisardLabels& labels = wisard.labels();
        labels.SpecialLb = row.answers.paramLine;
        labels.TopRowLb = row.answers.dataLine;
        labels.TopColumnLb = row.answers.firstColumn;
        labels.DelmLb = QString::fromStdString(row.answers.delimiter);
        questions.clear();
        readAnyway = false;
        bool openAfterGoingBack = false;
        EXPECT_FALSE(Show([&] {
            ClickOk();
            openAfterGoingBack = wisard.isVisible();
            ClickCancel();
        })) << row.name;
        EXPECT_TRUE(openAfterGoingBack) << row.name;
        ASSERT_EQ(questions.size(), 1) << row.name;
        EXPECT_TRUE(questions.front().contains(QString::fromUtf8(row.questionPart)))
            << questions.front().toStdString();

        readAnyway = true;
        EXPECT_TRUE(Show([&] { ClickOk(); })) << row.name;
        EXPECT_TRUE(wisard.labels().OkFlagLb) << row.name;
        EXPECT_EQ(questions.size(), 2) << row.name;
    }
}

// The question itself goes back unless 読込む is chosen: Enter does not read.
TEST_F(WisardTest, TheQuestionGoesBackByDefault) {
    UseFile("Word Number\r\n128,5,5\r\nRe,Im\r\n0.5,0.1\r\n");
    wisard.labels().SpecialLb = 1;
    wisard.SetAsker(nullptr);
    QString defaultButton, text;
    bool openAfterEnter = false;
    Show([&] {
        // The box shows inside the OK click; it is answered from there.
        QTimer::singleShot(100, &wisard, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr) << "no question showed";
            defaultButton = box->defaultButton()->text();
            text = box->text();
            QTest::keyClick(box, Qt::Key_Return);
        });
        ClickOk();
        openAfterEnter = wisard.isVisible();
        ClickCancel();
    });
    EXPECT_EQ(defaultButton, QStringLiteral("戻る"));
    EXPECT_TRUE(text.contains(QStringLiteral("パラメータ行（1 行目）"))) << text.toStdString();
    EXPECT_TRUE(openAfterEnter);
}

}  // namespace
}  // namespace lapdesk
