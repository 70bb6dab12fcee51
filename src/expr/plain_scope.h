// A scope of named scalars and arrays kept in maps: serves the evaluator
// where no program pages exist (tests, quick evaluation).
#pragma once

#include <map>
#include <optional>
#include <string>

#include "expr/name_scope.h"
#include "expr/scan_cache.h"
#include "values/matrix.h"

namespace lapdesk {

class PlainScope : public NameScope {
  public:
    void SetScalar(const std::string& name, Complex value);
    void SetArray(const std::string& name, ComplexArray array);

    // The array produced by the last matrix function with an array result.
    const std::optional<ComplexArray>& lastArrayResult() const { return lastArray_; }

    bool ReadVariable(Evaluator& evaluator, std::string_view name,
                      std::span<const SubscriptScan> subscripts, Place& place,
                      Complex& value) override;
    bool CallUserFunction(Evaluator& evaluator, std::string_view call, Complex& value) override;
    bool CallMatrixFunction(std::size_t index, std::span<const std::string_view> arguments,
                            Complex& value) override;
    ScanCache& Scans() override { return scans_; }

  private:
    ScanCache scans_;
    std::map<std::string, ComplexArray, std::less<>> arrays_;  // a scalar is a 1x1 array
    std::optional<ComplexArray> lastArray_;
};

}  // namespace lapdesk
