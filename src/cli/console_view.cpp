#include "console_view.h"

#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <iostream>
#include <string>

namespace lapdesk::cli {

namespace {

volatile std::sig_atomic_t interrupted = 0;

extern "C" void OnInterrupt(int) {
    interrupted = 1;
}

}  // namespace

ConsoleView::ConsoleView(bool rounded)
    : rounded_(rounded), meterOnTerminal_(isatty(STDERR_FILENO) != 0) {
    std::signal(SIGINT, OnInterrupt);
}

ConsoleView::~ConsoleView() {
    std::signal(SIGINT, SIG_DFL);
}

std::string QuotedInput(std::string_view text) {
    constexpr std::size_t kReadable = 120;  // bytes
    if (text.size() <= kReadable) return std::string(text);
    std::size_t cut = kReadable;
    while (cut > 0 && (static_cast<unsigned char>(text[cut]) & 0xC0) == 0x80)
        --cut;  // not inside a UTF-8 sequence
    return std::string(text.substr(0, cut)) + "…(" + std::to_string(text.size()) + "バイト)";
}

std::string ForTerminal(std::string_view text) {
    std::string out;
    for (;;) {
        const std::size_t end = text.find("\r\n");
        out += QuotedInput(text.substr(0, end));
        if (end == std::string_view::npos) return out;
        out += '\n';
        text.remove_prefix(end + 2);
    }
}

void ConsoleView::Errmessage(const std::string& message) {
    sawMessage_ = true;
    std::cerr << ForTerminal(message) << '\n';
}

void ConsoleView::ShowHint(const std::string& text) {
    std::cerr << text << '\n';
}

bool ConsoleView::StopRequested() const {
    return interrupted != 0;
}

void ConsoleView::ClearStopRequest() {
    interrupted = 0;
}

}  // namespace lapdesk::cli

namespace lapdesk::cli {

void ConsoleView::CalProcMeter(double value, bool reset) {
    if (!meterOnTerminal_) return;
    if (reset) {
        meterWidth_ = value;
        return;
    }
    if (!(meterWidth_ > 0.0) || !(value >= 0.0)) return;
    constexpr int kBarLength = 40;
    const double done = std::min(value / meterWidth_, 1.0);
    const int filled = static_cast<int>(done * kBarLength);
    std::cerr << "\r[" << std::string(filled, '#') << std::string(kBarLength - filled, ' ') << "] "
              << static_cast<int>(done * 100) << '%';
    if (value > meterWidth_) std::cerr << '\n';
    std::cerr.flush();
}

}  // namespace lapdesk::cli
