// The plot module lapdesk-cli-plot.so: the Qt part of lapdesk-cli --plot,
// loaded only when --plot is given so that every other use of the tool
// starts without the Qt libraries.
#include <QApplication>
#include <cstdio>
#include <string>
#include <type_traits>

#include "plot_module_entry.h"
#include "transform/window/plot/plot_image.h"

namespace {

// Qt's remarks about the offscreen platform (no runtime folder, no window
// manager hints) are not the user's business; errors still get through.
void QuietMessages(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
    }
}

}  // namespace

// Draws on Qt's offscreen platform, so no display is needed.
extern "C" [[gnu::visibility("default")]] void LapdeskWritePlotImage(
    const lapdesk::TransformDriver& driver, const lapdesk::AccurateResult* accurate,
    const std::string& path, std::string& reason) {
    static_assert(std::is_same_v<decltype(&LapdeskWritePlotImage), lapdesk::cli::PlotModuleEntry>);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QtMessageHandler previous = qInstallMessageHandler(QuietMessages);
    int argc = 1;
    char name[] = "lapdesk-cli";
    char* argv[] = {name, nullptr};
    {
        QApplication app(argc, argv);
        reason =
            lapdesk::SavePlotImage(driver, QString::fromStdString(path), QSize(960, 600), accurate)
                .toStdString();
    }
    qInstallMessageHandler(previous);
}
