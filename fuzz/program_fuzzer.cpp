// Runs the input as a program text, as the calculator's run command does.
// Programs may loop for ever, so the view asks to stop once a bounded amount
// of work has been done: a hang past that is a fault in stop handling.
#include <cstddef>
#include <cstdint>
#include <string>

#include "interp/interpreter.h"
#include "interp/recording_view.h"

namespace {

class BoundedView : public lapdesk::RecordingView {
  public:
    void ShowLineIndex(std::int16_t) override { Count(); }
    void ProcessEvents() override { Count(); }

  private:
    void Count() {
        if (++work_ >= 20000) stopRequested = true;
    }
    int work_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    BoundedView view;
    lapdesk::Interpreter session(view);
    session.SetProgramText(std::string(reinterpret_cast<const char*>(data), size));
    double re = 0.0;
    double im = 0.0;
    session.RunProgram(re, im, true, true);
    // A second run reuses the analysed pages and their memories.
    view.ClearStopRequest();
    session.RunProgram(re, im, false, true);
    return 0;
}
