// The numerical inverse Laplace transform as the transform window drives it:
// the parameters and state labels, the sample store, the sampling rule on the
// line s = gamma + j*omega, and the inversion command. Every public operation
// reports failure as an Outcome; no fault escapes.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "transform/inverse_fft.h"
#include "transform/outcome.h"
#include "transform/sample_store.h"
#include "values/complex.h"

namespace lapdesk {

// The first part of the record that sets the plot's scale and that the
// accuracy features trust; its end carries the FFT's wrap-around.
inline constexpr double kReliableFraction = 0.8;

// Where the present samples came from: none (or no longer valid), a
// program or F(s) run point by point, or a data file.
enum class DataSource : std::uint8_t { None, Program, File };

// The choices of N.
inline constexpr std::array<int, 6> kWordNumbers = {128, 256, 512, 1024, 2048, 4096};

// The parameters, with the values derived from them.
struct Conditions {
    std::int16_t N = 0;
    std::int16_t NPos = 0;  // N/2: samples are taken for k = 0..NPos
    double T = 0.0;         // record length
    double Gamma0 = 0.0;    // gamma * T

    double Gamma() const { return Gamma0 / T; }  // real part of every sample point
    double DeltaOmega() const;                   // 2*pi/T between sample points
    double DeltaT() const { return T / N; }      // spacing of the result
    double TimeAt(int k) const { return k * T / N; }
};

class TransformDriver {
  public:
    using StatusSink = std::function<void(std::string_view)>;

    // N 256, T 5, gamma0 5, Hanning on, no data and no result.
    TransformDriver();

    // Progress texts go to the sink (the window's status label).
    void SetStatusSink(StatusSink sink) { status_ = std::move(sink); }
    void SetStatus(std::string_view text) const;

    // Parameter entry. N must be one of kWordNumbers; T and gamma0 must be
    // numbers greater than 0, and are taken as the 15 significant digits the
    // window shows of them. A rejected value changes nothing and returns
    // false. A new value drops the data and the result: data made for other
    // parameters are no longer valid. So does turning the Hanning taper on
    // or off: the samples were tapered, or not, when they were made.
    bool SetN(int n);
    bool SetT(double t);
    bool SetGamma0(double gamma0);
    void SetHaning(bool on);
    // The same from the text of an entry field or an option.
    bool SetWordNumber(std::string_view text);
    bool SetTend(std::string_view text);
    bool SetGanma(std::string_view text);

    DataSource Source() const { return source_; }
    bool HasData() const { return source_ != DataSource::None; }
    bool HasResult() const { return hasResult_; }
    int CosTableN() const { return cosTableN_; }  // 0 before the first build
    bool HaningOn() const { return haningOn_; }

    const Conditions& GetConditions() const { return conditions_; }

    // Rebuilds the cosine table only when N differs from the one it was
    // built for; returns whether it did.
    bool BuildCosTable();

    const SampleStore& Store() const { return store_; }
    const TransformBlock& Block() const { return block_; }

    // Sampling rule, k = 0..N/2: the point s_k = gamma + j*k*2*pi/T, the
    // Hanning weight (1 + cos(k*2*pi/N))/2 (1 when Hanning is off), and
    // StoreSample, which stores F(s_k)*(N/T)*w_k at k and its conjugate at
    // N-k (except for k = 0 and k = N/2). A program-driven loop calls
    // BeginDataCreation, StoreSample for every k and FinishDataCreation.
    Complex SamplePoint(int k) const;
    // "k = 3 (s = 1+3.76991j)": where a failure happened, for its reason.
    std::string SamplePointText(int k) const;
    double HanningWeight(int k) const;
    void BeginDataCreation();
    Outcome StoreSample(int k, const Complex& value);
    // Marks the data as made by a program and runs the inversion.
    Outcome FinishDataCreation();
    // The whole loop for a callable F(s); an exception from F stops it.
    Outcome MakeData(const std::function<Complex(const Complex&)>& f);

    // Inverts the present samples into the result series (kind 2).
    Outcome Invert();

    // Takes samples read from a file: sets the parameters, stores re/im in
    // kinds 0 and 1 and marks the source as a file. n must be one of
    // kWordNumbers, t and gamma0 greater than 0, and re and im hold n values.
    void LoadFileData(std::int16_t n, double t, double gamma0, std::span<const double> re,
                      std::span<const double> im);

  private:
    void MarkDataInvalid();
    void SetWord(int n);
    // T or gamma0 (`parameter`) from a value, as SetT and SetGamma0 take it.
    bool SetPositive(double value, double& parameter);

    StatusSink status_;
    Conditions conditions_;
    int cosTableN_ = 0;
    DataSource source_ = DataSource::None;
    bool hasResult_ = false;
    bool haningOn_ = true;
    TransformBlock block_;
    SampleStore store_;
    std::vector<double> output_ = std::vector<double>(kMaxPoints);
};

}  // namespace lapdesk
