#include "expr/scan_cache.h"

#include <functional>

namespace lapdesk {

namespace {

// Far above the texts of any program, far below what memory allows.
constexpr std::size_t kMaxKeptBytes = 4u << 20;
constexpr std::size_t kMaxSeenOnce = 1u << 16;

}  // namespace

ScanCache::Evaluating::Evaluating(ScanCache& cache) : cache_(cache) {
    if (cache_.evaluating_++ > 0) return;
    if (cache_.keptBytes_ > kMaxKeptBytes) {
        cache_.sums_.clear();
        cache_.conditions_.clear();
        cache_.keptBytes_ = 0;
    }
    if (cache_.seenOnce_.size() > kMaxSeenOnce) cache_.seenOnce_.clear();
}

bool ScanCache::SeenBefore(std::string_view text) {
    return !seenOnce_.insert(std::hash<std::string_view>{}(text)).second;
}

template <typename Scan>
const Scan& ScanCache::Find(Store<Scan>& store, std::string_view text, std::optional<Scan>& fresh) {
    if (const auto it = store.find(text); it != store.end()) return it->second->scan;
    if (!SeenBefore(text)) return fresh.emplace(text);
    auto kept = std::make_unique<KeptScan<Scan>>(text);
    const Scan& scan = kept->scan;
    keptBytes_ += sizeof(KeptScan<Scan>) + 16 * text.size();  // with the operand scans to come
    store.emplace(kept->text, std::move(kept));
    return scan;
}

const SumScan& ScanCache::Sum(std::string_view text, std::optional<SumScan>& fresh) {
    return Find(sums_, text, fresh);
}

const ConditionScan& ScanCache::Condition(std::string_view text,
                                          std::optional<ConditionScan>& fresh) {
    return Find(conditions_, text, fresh);
}

}  // namespace lapdesk
