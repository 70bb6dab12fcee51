#include "console_view.h"

#include <csignal>
#include <iostream>

namespace lapdesk::cli {

namespace {

volatile std::sig_atomic_t interrupted = 0;

extern "C" void OnInterrupt(int) { interrupted = 1; }

}  // namespace

ConsoleView::ConsoleView(bool rounded) : rounded_(rounded) { std::signal(SIGINT, OnInterrupt); }

ConsoleView::~ConsoleView() { std::signal(SIGINT, SIG_DFL); }

std::string ForTerminal(std::string text) {
    for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at)) {
        text.replace(at, 2, "\n");
    }
    return text;
}

void ConsoleView::Errmessage(const std::string& message) {
    sawMessage_ = true;
    std::cerr << ForTerminal(message) << '\n';
}

void ConsoleView::ShowHint(const std::string& text) { std::cerr << text << '\n'; }

bool ConsoleView::StopRequested() const { return interrupted != 0; }

void ConsoleView::ResetStop() { interrupted = 0; }

}  // namespace lapdesk::cli
