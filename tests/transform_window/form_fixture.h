// A transform window for widget tests: scripted answers stand in for the
// question boxes and file dialogs of both windows, the calculator's error
// messages are recorded and double-clicked away, the wizard is answered by a
// script once it is up, and any other modal dialog fails the test and is
// closed instead of hanging it.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "calculator/frm_cpl_cal.h"
#include "importer/read_file_wisard.h"
#include "scripted_dialogs.h"
#include "temp_folder.h"
#include "transform/window/plot/scrn_plot.h"
#include "transform/window/tesmor_form.h"

namespace lapdesk::testing {

class FormTest : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    template <typename T>
    T* Find(const char* name) {
        T* found = form->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << "no control named " << name;
        return found;
    }
    QAction* Action(const char* name) { return Find<QAction>(name); }
    QString Text(const char* label) { return Find<QLabel>(label)->text(); }
    ScrnPlot* Scrn() { return Find<ScrnPlot>("Scrn"); }
    FrmCplCal& Calculator() { return form->calculator(); }

    void Click(const char* button);
    // Program mode in the calculator, the text typed into its editor.
    void TypeProgram(const QString& text);
    // The 1/(p+1) program, set without typing.
    void SetProgram(const QString& text);
    // Makes data with the program and transforms it, as "実行" does.
    void RunProgram(const QString& text);
    // The next showing of the wizard is answered by OK with the entries that
    // read back a file the window saved ("," between columns, parameters on
    // line 2, data from line 4 and column 1), or by Cancel.
    void AnswerWisard(bool ok);
    bool SawStatus(const QString& text) const { return statuses.contains(text); }

    testing_support::TempFolder folder;
    QString PathOf(const std::string& name) const {
        return QString::fromStdString((folder / name).string());
    }

    std::shared_ptr<Script> script = std::make_shared<Script>();
    std::unique_ptr<TesmorForm> form;
    QStringList statuses;  // every status text, in order
    QStringList messages;  // the calculator's error messages
    int wisardShowings = 0;

  private:
    QTimer modalWatch_;
    std::function<void()> wisardAnswer_;
};

}  // namespace lapdesk::testing
