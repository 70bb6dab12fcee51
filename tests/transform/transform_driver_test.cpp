#include "transform/transform_driver.h"
#include "values/number_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "named_rows.h"
#include "status_log.h"

namespace lapdesk {
namespace {

using testing_support::StatusLog;
using Strings = std::vector<std::string>;

Complex OneOverSPlusOne(const Complex& s) {
    return CplDiv({1, 0}, CplAdd(s, {1, 0}));
}

TEST(ParameterEntry, AcceptsOnlyValidTexts) {
    struct Row {
        std::function<bool(TransformDriver&, std::string_view)> set;
        std::function<std::string(const TransformDriver&)> label;
        std::string text;
        bool accepted;
        std::string labelAfter;
    };
    const auto n = [](TransformDriver& d, std::string_view t) { return d.SetWordNumber(t); };
    const auto t = [](TransformDriver& d, std::string_view s) { return d.SetTend(s); };
    const auto g = [](TransformDriver& d, std::string_view s) { return d.SetGanma(s); };
    // What the labels show: N, and T and gamma0 to 15 digits.
    const auto nLb = [](const TransformDriver& d) { return std::to_string(d.GetConditions().N); };
    const auto tLb = [](const TransformDriver& d) { return DoubleToText(d.GetConditions().T); };
    const auto gLb = [](const TransformDriver& d) {
        return DoubleToText(d.GetConditions().Gamma0);
    };
    const std::vector<Row> rows = {
        {n, nLb, "128", true, "128"},   {n, nLb, "4096", true, "4096"},
        {n, nLb, "8192", false, "256"}, {n, nLb, "300", false, "256"},
        {t, tLb, "2.5", true, "2.5"},   {t, tLb, "1E-3", true, "0.001"},
        {t, tLb, "10.0", true, "10"},   {t, tLb, "0", false, "5"},
        {t, tLb, "abc", false, "5"},    {t, tLb, "", false, "5"},
        {g, gLb, "0.5", true, "0.5"},   {g, gLb, "-0.5", false, "5"},
        {g, gLb, "1e999", false, "5"},
    };
    for (const Row& row : rows) {
        TransformDriver driver;
        EXPECT_EQ(row.set(driver, row.text), row.accepted) << row.text;
        EXPECT_EQ(row.label(driver), row.labelAfter) << row.text;
    }
}

// A new value (the Hanning switch too) makes the data and the result stale;
// the same value again or a rejected text keep them.
TEST(ParameterEntry, OnlyANewValueInvalidatesDataAndResult) {
    const struct {
        const char* name;
        std::function<void(TransformDriver&)> change;
        bool invalidates;
    } rows[] = {{"new N", [](TransformDriver& d) { d.SetWordNumber("512"); }, true},
                {"new T", [](TransformDriver& d) { d.SetTend("2"); }, true},
                {"new gamma", [](TransformDriver& d) { d.SetGanma("3"); }, true},
                {"same N", [](TransformDriver& d) { d.SetWordNumber("256"); }, false},
                {"same T", [](TransformDriver& d) { d.SetTend("5.0"); }, false},
                {"rejected gamma", [](TransformDriver& d) { d.SetGanma("0"); }, false},
                {"Hanning off", [](TransformDriver& d) { d.SetHaning(false); }, true},
                {"Hanning on again", [](TransformDriver& d) { d.SetHaning(true); }, false}};
    for (const auto& row : rows) {
        TransformDriver driver;
        ASSERT_TRUE(driver.MakeData(OneOverSPlusOne).ok);
        row.change(driver);
        EXPECT_EQ(driver.Source(), row.invalidates ? DataSource::None : DataSource::Program)
            << row.name;
        EXPECT_EQ(driver.HasResult(), !row.invalidates) << row.name;
    }
}

TEST(Sampling, StoresScaledWeightedSamplesAndTheirConjugateMirror) {
    TransformDriver driver;  // N 256, T 5: scale 51.2
    driver.SetHaning(false);
    ASSERT_TRUE(driver.StoreSample(0, {1, 2}).ok);
    ASSERT_TRUE(driver.StoreSample(3, {1, 2}).ok);
    ASSERT_TRUE(driver.StoreSample(128, {1, 2}).ok);
    const auto& re = driver.Store()[kSampleRe].Values;
    const auto& im = driver.Store()[kSampleIm].Values;
    EXPECT_EQ(re[3], 51.2);
    EXPECT_EQ(im[3], 102.4);
    EXPECT_EQ(re[253], 51.2);
    EXPECT_EQ(im[253], -102.4);
    EXPECT_EQ(im[0], 102.4);  // index 0 is not mirrored into index 256
    EXPECT_EQ(re[256], 0.0);
    EXPECT_EQ(im[128], 102.4);  // nor is index N/2
    driver.SetHaning(true);
    ASSERT_TRUE(driver.StoreSample(128, {1, 2}).ok);
    EXPECT_EQ(re[128], 0.0);
    EXPECT_EQ(im[128], 0.0);
}

TEST(Sampling, RefusesIndicesOffTheHalfSpectrumAndOverflow) {
    TransformDriver driver;
    EXPECT_FALSE(driver.StoreSample(-1, {1, 0}).ok);
    EXPECT_FALSE(driver.StoreSample(129, {1, 0}).ok);
    const Outcome overflow = driver.StoreSample(1, {1e308, 0});
    EXPECT_FALSE(overflow.ok);
    EXPECT_NE(overflow.reason.find("k = 1"), std::string::npos) << overflow.reason;
}

struct AnalyticPair {
    const char* name;
    Complex (*F)(const Complex&);
    double (*f)(double);
    int firstChecked;               // samples skipped after a jump at t = 0
    double (*tolerance)(double t);  // the method's error at t
};

// With T = 10 and gamma0 = 10 the aliasing error of the damped inversion is
// about the sum over n >= 1 of f(t + nT)*exp(-n*gamma0). The Hanning taper
// adds a smoothing error of order dt^2*f''(t), rounds a kink at t = 0 over
// one sample and makes a jump at t = 0 ring for a few samples.
const AnalyticPair kPairs[] = {
    {"ExpDecay", OneOverSPlusOne, [](double t) { return std::exp(-t); }, 8,
     [](double) { return 3e-4; }},
    {"Ramp",
     [](const Complex& s) {
         return CplDiv({1, 0}, CplMul(s, s));
     },
     [](double t) { return t; }, 1, [](double t) { return 2 * (t + 10) * std::exp(-10.0) + 1e-4; }},
    {"Sine",
     [](const Complex& s) {
         return CplDiv({1, 0}, CplAdd(CplMul(s, s), {1, 0}));
     },
     [](double t) { return std::sin(t); }, 1, [](double) { return 3e-4; }},
};

class AnalyticInversion : public testing::TestWithParam<AnalyticPair> {};

TEST_P(AnalyticInversion, MatchesTheTimeFunctionOverTheFirstEightyPercent) {
    const AnalyticPair& pair = GetParam();
    TransformDriver driver;
    ASSERT_TRUE(driver.SetWordNumber("1024"));
    ASSERT_TRUE(driver.SetTend("10"));
    ASSERT_TRUE(driver.SetGanma("10"));
    const Outcome made = driver.MakeData(pair.F);
    ASSERT_TRUE(made.ok) << made.reason;
    const Conditions c = driver.GetConditions();
    const auto& y = driver.Store()[kResult].Values;
    for (int k = pair.firstChecked; k < 819; ++k) {
        const double t = c.TimeAt(k);
        ASSERT_NEAR(y[k], pair.f(t), pair.tolerance(t)) << "k " << k << " t " << t;
    }
}

INSTANTIATE_TEST_SUITE_P(Pairs, AnalyticInversion, testing::ValuesIn(kPairs), RowName());

TEST(Inversion, AJumpAtZeroGivesItsMidpoint) {
    TransformDriver driver;
    ASSERT_TRUE(driver.MakeData(OneOverSPlusOne).ok);
    EXPECT_NEAR(driver.Store()[kResult].Values[0], 0.5, 0.02);
}

TEST(Inversion, ReportsItsPhasesInOrder) {
    TransformDriver driver;
    StatusLog log(driver);
    ASSERT_TRUE(driver.MakeData(OneOverSPlusOne).ok);
    EXPECT_EQ(log.texts, (Strings{"データ作成中", "データ作成成功", "逆ラプラス変換中", "逆ＦＦＴ",
                                  "逆変換終了", ""}));
    log.texts.clear();
    ASSERT_TRUE(driver.Invert().ok);
    EXPECT_EQ(log.texts, (Strings{"逆ラプラス変換中", "逆ＦＦＴ", "逆変換終了", ""}));
}

// The cosine table is built once per N; inverting again repeats the result
// bit for bit.
TEST(Inversion, RepeatsBitForBitAndRebuildsTheTableOnlyForANewN) {
    TransformDriver driver;
    ASSERT_TRUE(driver.MakeData(OneOverSPlusOne).ok);
    EXPECT_EQ(driver.CosTableN(), 256);
    const std::vector<double> first = driver.Store()[kResult].Values;
    EXPECT_FALSE(driver.BuildCosTable());
    ASSERT_TRUE(driver.Invert().ok);
    EXPECT_EQ(driver.Store()[kResult].Values, first);
    ASSERT_TRUE(driver.SetWordNumber("2048"));
    EXPECT_TRUE(driver.BuildCosTable());
    EXPECT_EQ(driver.CosTableN(), 2048);
    EXPECT_EQ(driver.Block().CosTable.size(), 1025u);
}

TEST(Inversion, ScaleOfTheResultIgnoresTheLastFifth) {
    TransformDriver driver;  // N 256: the first 205 points set the scale
    ASSERT_TRUE(driver.MakeData([](const Complex& s) { return CplDiv({1, 0}, CplMul(s, s)); }).ok);
    const SampleSeries& y = driver.Store()[kResult];
    const auto first = y.Values.begin();
    EXPECT_EQ(y.MaxValue, *std::max_element(first, first + 205));
    EXPECT_EQ(y.MinValue, *std::min_element(first, first + 205));
    EXPECT_LT(y.MaxValue, *std::max_element(first, first + 256));  // f(t) = t keeps rising
}

TEST(Inversion, OverflowFailsCleanlyAndKeepsTheLastResult) {
    TransformDriver driver;
    ASSERT_TRUE(driver.MakeData(OneOverSPlusOne).ok);
    const std::vector<double> before = driver.Store()[kResult].Values;
    ASSERT_TRUE(driver.SetGanma("1000"));
    StatusLog log(driver);
    const Outcome outcome = driver.MakeData(OneOverSPlusOne);
    EXPECT_FALSE(outcome.ok);
    EXPECT_NE(outcome.reason.find("k = 182 (t = 3.55469)"), std::string::npos) << outcome.reason;
    EXPECT_FALSE(driver.HasResult());
    EXPECT_EQ(driver.Store()[kResult].Values, before);
    EXPECT_EQ(log.texts.back(), "");
}

// An arithmetic fault in F(s) is an exception like any other and takes the
// same path.
TEST(DataCreation, AFailingFunctionStopsTheLoop) {
    TransformDriver driver;
    StatusLog log(driver);
    int calls = 0;
    const Outcome outcome = driver.MakeData([&calls](const Complex& s) {
        if (++calls == 11) throw std::runtime_error("no value");
        return OneOverSPlusOne(s);
    });
    EXPECT_FALSE(outcome.ok);
    EXPECT_NE(outcome.reason.find("k = 10"), std::string::npos) << outcome.reason;
    EXPECT_EQ(log.texts, (Strings{"データ作成中", "数値計算実行時エラー"}));
    EXPECT_EQ(driver.Source(), DataSource::None);
    EXPECT_FALSE(driver.HasResult());
    EXPECT_NE(driver.Store()[kSampleRe].Values[9], 0.0);  // points made so far stay
    EXPECT_NE(driver.Store()[kSampleRe].Values[256 - 9], 0.0);
    EXPECT_EQ(driver.Store()[kSampleRe].Values[10], 0.0);
}

}  // namespace
}  // namespace lapdesk
