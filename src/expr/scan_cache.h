// The scans of the expression and condition texts the program evaluates
// again and again, kept per text. A text is scanned afresh the first time it
// is seen and kept from its second evaluation on, so texts that come once
// (the immediate line's "p=..." of every sample point) cost no more than
// before. The scans depend on the text alone, so they never go stale; the
// store is emptied when it grows past its bound, between evaluations only.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "expr/condition_scan.h"
#include "expr/expression_scan.h"

namespace lapdesk {

// A scan together with the text it points into.
template <typename Scan>
struct KeptScan {
    explicit KeptScan(std::string_view t) : text(t), scan(std::string_view(text)) {}
    KeptScan(const KeptScan&) = delete;
    KeptScan& operator=(const KeptScan&) = delete;
    std::string text;
    Scan scan;
};

class ScanCache {
  public:
    // Held while an evaluation runs: the store is never emptied under the
    // scans that an evaluation is working through.
    class Evaluating {
      public:
        explicit Evaluating(ScanCache& cache);
        ~Evaluating() { --cache_.evaluating_; }
        Evaluating(const Evaluating&) = delete;
        Evaluating& operator=(const Evaluating&) = delete;

      private:
        ScanCache& cache_;
    };

    // The kept scan of the text, or a fresh one made in `fresh`.
    const SumScan& Sum(std::string_view text, std::optional<SumScan>& fresh);
    const ConditionScan& Condition(std::string_view text, std::optional<ConditionScan>& fresh);

  private:
    template <typename Scan>
    using Store = std::unordered_map<std::string_view, std::unique_ptr<KeptScan<Scan>>>;

    // True when the text has been seen before (and is to be kept now).
    bool SeenBefore(std::string_view text);
    template <typename Scan>
    const Scan& Find(Store<Scan>& store, std::string_view text, std::optional<Scan>& fresh);

    Store<SumScan> sums_;
    Store<ConditionScan> conditions_;
    std::unordered_set<std::size_t> seenOnce_;  // hashes of texts seen once
    std::size_t keptBytes_ = 0;
    int evaluating_ = 0;
};

}  // namespace lapdesk
