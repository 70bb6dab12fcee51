// Every sample program runs and gives the result its comment states; the
// transform samples are run at p = 1.
#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QString>

#include "calculator/sample_programs.h"
#include "interp/interpreter.h"
#include "interp/recording_view.h"
#include "values/number_text.h"

namespace lapdesk {
namespace {

// The text after "結果: " in the sample's comment, up to a blank.
std::string StatedResult(const char* text) {
    static const QRegularExpression pattern(QStringLiteral("結果: (\\S+)"));
    return pattern.match(QString::fromUtf8(text)).captured(1).toStdString();
}

void ExpectRuns(const SampleProgram& sample, bool atPEqualsOne) {
    RecordingView view;
    view.rounded = true;
    Interpreter session(view);
    if (atPEqualsOne) {
        ASSERT_TRUE(session.ImmediateLine("p = 1+0j").ok);
    }
    std::string text = sample.text;
    for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 2)) {
        text.replace(at, 1, "\r\n");
    }
    session.SetProgramText(text);
    double re = 0.0;
    double im = 0.0;
    EXPECT_TRUE(session.RunProgram(re, im, false, true)) << sample.title;
    EXPECT_TRUE(view.messages.empty()) << sample.title << ": " << view.messages.front();
    Complex value{re, im};
    const std::string expected = StatedResult(sample.text);
    ASSERT_FALSE(expected.empty()) << sample.title << " states no result";
    EXPECT_EQ(ComplexToText(value, true), expected) << sample.title;
}

TEST(Samples, GiveTheirStatedResults) {
    for (const bool transform : {false, true}) {
        const auto& samples = transform ? TransformSamples() : GeneralSamples();
        ASSERT_FALSE(samples.empty());
        for (const SampleProgram& sample : samples)
            ExpectRuns(sample, transform);
    }
}

}  // namespace
}  // namespace lapdesk
