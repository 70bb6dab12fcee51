// A calculator window for widget tests: scripted answers stand in for the
// question boxes and file dialogs, every error message is recorded and
// double-clicked away as soon as it shows, and an unexpected modal dialog
// fails the test and is closed instead of hanging it.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <deque>
#include <memory>
#include <ostream>

#include "calculator/frm_cpl_cal.h"
#include "scripted_dialogs.h"

namespace lapdesk::testing {

class WindowTest : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    template <typename T>
    T* Find(const char* name) {
        T* found = window->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << "no control named " << name;
        return found;
    }
    QAction* Action(const char* name) { return Find<QAction>(name); }
    QLineEdit* Immediate() { return Find<QLineEdit>("ImidateTextBox"); }
    QPlainTextEdit* Editor() { return Find<QPlainTextEdit>("ProgramText"); }
    QString Kai() { return Find<QLabel>("kai")->text(); }

    void Click(const char* button);
    // Types the line into the immediate box and presses Return.
    void TypeLine(const QString& line);
    // Program mode with this text in the editor.
    void SetProgram(const QString& text);
    void DoubleClickRow(QListWidget* list, int row, Qt::KeyboardModifiers modifiers = {});
    QStringList Rows(const QListWidget* list) const;

    std::shared_ptr<Script> script = std::make_shared<Script>();
    std::unique_ptr<FrmCplCal> window;
    QStringList messages;             // every error message shown, in order
    bool buttonsWhileWaiting = true;  // ProgramButtons enabled while the last message waited
    bool fileMenuWhileWaiting = true;

  private:
    QTimer modalWatch_;
};

}  // namespace lapdesk::testing
