// Bounds the nesting of the language's recursive work (brackets in an
// expression, function calls) so that deep input ends with an error instead
// of overflowing the machine stack.
#pragma once

namespace lapdesk {

class NestingGuard {
public:
    NestingGuard();
    ~NestingGuard();
    NestingGuard(const NestingGuard&) = delete;
    NestingGuard& operator=(const NestingGuard&) = delete;

    // False when this level is one too many: the caller must fail.
    bool ok() const { return ok_; }

private:
    bool ok_;
};

}  // namespace lapdesk
