#include "transform/transform_driver.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <optional>
#include <string>

#include "values/fault.h"
#include "values/number_text.h"

namespace lapdesk {

namespace {

// pi as 4*atan(1): the value every result of the transform was made with.
double Pi() {
    static const double pi = 4.0 * std::atan(1.0);
    return pi;
}

// Entries of the cosine table before the first build.
constexpr int kInitialCosTableSize = 1024;

// A parameter as the window shows it: the value its 15-digit text reads
// back as; nothing for a value that is not a number greater than 0.
std::optional<double> ShownPositive(double x) {
    if (!(x > 0.0)) return std::nullopt;
    return DoubleThroughText(x);
}

std::optional<double> PositiveEntry(std::string_view text) {
    double x = 0.0;
    if (!TextToReal(text, x)) return std::nullopt;
    return ShownPositive(x);
}

// A number for a reason text: six significant digits are enough to find it.
std::string Short(double x) {
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", x);
    return text;
}

// The first point where exp(k*gamma0/N)*x[k] leaves the range of a double,
// read from the inverse FFT that the failed inversion left in the block;
// -1 when the fault came from the FFT itself.
int FirstOverflowingPoint(const TransformBlock& block) {
    const double d = block.Gamma0 / block.N;
    for (int k = 0; k < block.N; ++k) {
        if (!std::isfinite(std::exp(k * d) * block.Data[k].Re)) return k;
    }
    return -1;
}

std::string InversionFailure(const RuntimeFault& fault, const TransformBlock& block,
                             const Conditions& c) {
    if (fault.code() != FaultCode::Overflow)
        return std::string("逆変換できません: ") + fault.what();
    const int k = FirstOverflowingPoint(block);
    if (k < 0) return "逆ＦＦＴで桁あふれが生じました（標本値が大き過ぎます）";
    return "k = " + std::to_string(k) + " (t = " + Short(c.TimeAt(k)) +
           ") で exp(k·γ0/N)·x[k] が倍精度の範囲を超えました（k·γ0/N = " +
           Short(k * c.Gamma0 / c.N) + "）。γ0 を小さくしてください";
}

}  // namespace

double Conditions::DeltaOmega() const {
    return 2.0 * Pi() / T;
}

TransformDriver::TransformDriver() {
    block_.CosTable.resize(kInitialCosTableSize);
    SetWord(256);
    conditions_.T = 5.0;
    conditions_.Gamma0 = 5.0;
}

void TransformDriver::SetStatus(std::string_view text) const {
    if (status_) status_(text);
}

void TransformDriver::MarkDataInvalid() {
    hasResult_ = false;
    source_ = DataSource::None;
}

void TransformDriver::SetWord(int n) {
    conditions_.N = static_cast<std::int16_t>(n);
    conditions_.NPos = static_cast<std::int16_t>(n / 2);
}

bool TransformDriver::SetN(int n) {
    if (std::find(kWordNumbers.begin(), kWordNumbers.end(), n) == kWordNumbers.end()) return false;
    if (conditions_.N != n) MarkDataInvalid();
    SetWord(n);
    return true;
}

void TransformDriver::SetHaning(bool on) {
    if (haningOn_ != on) MarkDataInvalid();
    haningOn_ = on;
}

bool TransformDriver::SetPositive(double value, double& parameter) {
    const std::optional<double> shown = ShownPositive(value);
    if (!shown) return false;
    if (parameter != *shown) MarkDataInvalid();
    parameter = *shown;
    return true;
}

bool TransformDriver::SetT(double t) {
    return SetPositive(t, conditions_.T);
}

bool TransformDriver::SetGamma0(double gamma0) {
    return SetPositive(gamma0, conditions_.Gamma0);
}

bool TransformDriver::SetWordNumber(std::string_view text) {
    const auto match = [text](int n) { return std::to_string(n) == text; };
    const auto found = std::find_if(kWordNumbers.begin(), kWordNumbers.end(), match);
    return found != kWordNumbers.end() && SetN(*found);
}

bool TransformDriver::SetTend(std::string_view text) {
    const std::optional<double> t = PositiveEntry(text);
    return t && SetT(*t);
}

bool TransformDriver::SetGanma(std::string_view text) {
    const std::optional<double> gamma0 = PositiveEntry(text);
    return gamma0 && SetGamma0(*gamma0);
}

bool TransformDriver::BuildCosTable() {
    const int n = GetConditions().N;
    if (n == 0 || cosTableN_ == n) return false;
    block_.CosTable.resize(n / 2 + 1);
    for (int k = 0; k <= n / 2; ++k)
        block_.CosTable[k] = std::cos(k * 2.0 * Pi() / n);
    cosTableN_ = n;
    return true;
}

Complex TransformDriver::SamplePoint(int k) const {
    const Conditions c = GetConditions();
    return {c.Gamma(), k * c.DeltaOmega()};
}

double TransformDriver::HanningWeight(int k) const {
    if (!haningOn_) return 1.0;
    const double c = 2.0 * Pi() / GetConditions().N;
    return (std::cos(k * c) + 1.0) * 0.5;
}

// The data and result are dropped before the status is shown, so the window never
// shows the old states beside "データ作成中".
void TransformDriver::BeginDataCreation() {
    MarkDataInvalid();
    SetStatus("データ作成中");
}

std::string TransformDriver::SamplePointText(int k) const {
    Complex s = SamplePoint(k);
    return "k = " + std::to_string(k) + " (s = " + ComplexToText(s, true) + ")";
}

Outcome TransformDriver::StoreSample(int k, const Complex& value) {
    const Conditions c = GetConditions();
    if (k < 0 || k > c.NPos) {
        return Outcome::Failure("標本番号 k = " + std::to_string(k) + " は 0.." +
                                std::to_string(c.NPos) + " の外です");
    }
    const double w = HanningWeight(k);
    const double scale = c.N / c.T;
    block_.WindowWeight = w;
    double re = 0.0;
    double im = 0.0;
    try {
        re = Checked(Checked(value.Re * scale) * w);
        im = Checked(Checked(value.Im * scale) * w);
    } catch (const RuntimeFault&) {
        Complex f = value;
        return Outcome::Failure(SamplePointText(k) + ": F(s) = " + ComplexToText(f, true) +
                                " は N/T 倍すると倍精度の範囲を超えます");
    }
    std::vector<double>& reSeries = store_[kSampleRe].Values;
    std::vector<double>& imSeries = store_[kSampleIm].Values;
    reSeries[k] = re;
    imSeries[k] = im;
    if (k != 0 && k != c.N / 2) {
        reSeries[c.N - k] = re;
        imSeries[c.N - k] = -im;
    }
    return Outcome::Success();
}

Outcome TransformDriver::FinishDataCreation() {
    SetStatus("データ作成成功");
    source_ = DataSource::Program;
    const int n = GetConditions().N;
    store_.GetMaxValue(kSampleRe, n);
    store_.GetMaxValue(kSampleIm, n);
    return Invert();
}

Outcome TransformDriver::MakeData(const std::function<Complex(const Complex&)>& f) {
    BeginDataCreation();
    const int nPos = GetConditions().NPos;
    for (int k = 0; k <= nPos; ++k) {
        Outcome stored;
        try {
            stored = StoreSample(k, f(SamplePoint(k)));
        } catch (const std::exception& e) {
            stored = Outcome::Failure(SamplePointText(k) + ": F(s) を計算できません: " + e.what());
        }
        if (!stored.ok) {
            SetStatus("数値計算実行時エラー");
            return stored;
        }
    }
    return FinishDataCreation();
}

// Fills the complex data from kinds 0 and 1, inverts it into a scratch
// array and commits the result to kind 2 only when the whole of it is valid.
Outcome TransformDriver::Invert() {
    const Conditions c = GetConditions();
    block_.N = c.N;
    block_.NHalf = c.NPos;
    block_.Gamma0 = c.Gamma0;
    block_.Tend = c.T;
    block_.HaningOn = haningOn_;
    SetStatus("逆ラプラス変換中");
    BuildCosTable();
    for (int k = 0; k < c.N; ++k) {
        block_.Data[k] = {store_[kSampleRe].Values[k], store_[kSampleIm].Values[k]};
    }
    SetStatus("逆ＦＦＴ");
    try {
        IfftToReal(output_, block_);
    } catch (const RuntimeFault& fault) {
        hasResult_ = false;
        SetStatus("");
        return Outcome::Failure(InversionFailure(fault, block_, c));
    }
    std::copy_n(output_.begin(), c.N, store_[kResult].Values.begin());
    store_.GetMaxValue(kResult, static_cast<int>(std::nearbyint(kReliableFraction * c.N)));
    SetStatus("逆変換終了");
    hasResult_ = true;
    SetStatus("");
    return Outcome::Success();
}

void TransformDriver::LoadFileData(std::int16_t n, double t, double gamma0,
                                   std::span<const double> re, std::span<const double> im) {
    SetWord(n);
    conditions_.T = ShownPositive(t).value_or(conditions_.T);
    conditions_.Gamma0 = ShownPositive(gamma0).value_or(conditions_.Gamma0);
    std::copy_n(re.begin(), n, store_[kSampleRe].Values.begin());
    std::copy_n(im.begin(), n, store_[kSampleIm].Values.begin());
    hasResult_ = false;
    source_ = DataSource::File;
    store_.GetMaxValue(kSampleRe, n);
    store_.GetMaxValue(kSampleIm, n);
}

}  // namespace lapdesk
