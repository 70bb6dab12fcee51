#include "plot_option.h"

#include <QApplication>
#include <cstdio>

#include "transform/window/plot/plot_image.h"

namespace lapdesk::cli {

namespace {

// Qt's remarks about the offscreen platform (no runtime folder, no window
// manager hints) are not the user's business; errors still get through.
void QuietMessages(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
    }
}

}  // namespace

std::string WritePlotImage(const TransformDriver& driver, const std::string& path) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QtMessageHandler previous = qInstallMessageHandler(QuietMessages);
    int argc = 1;
    char name[] = "lapdesk-cli";
    char* argv[] = {name, nullptr};
    std::string reason;
    {
        QApplication app(argc, argv);
        reason = SavePlotImage(driver, QString::fromStdString(path)).toStdString();
    }
    qInstallMessageHandler(previous);
    return reason;
}

}  // namespace lapdesk::cli
