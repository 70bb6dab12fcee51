#include <dlfcn.h>

#include <filesystem>
#include <system_error>

#include "plot_module_entry.h"
#include "plot_option.h"

namespace lapdesk::cli {

namespace {

// Next to the tool (the build tree), then in the installed layout, where the
// module lies at LAPDESK_PLOT_MODULE_DIR relative to the tool's folder.
std::filesystem::path FindPlotModule() {
    std::error_code error;
    const std::filesystem::path tool = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) return {};
    const std::filesystem::path folder = tool.parent_path();
    for (const std::filesystem::path& candidate :
         {folder / kPlotModuleFile, folder / LAPDESK_PLOT_MODULE_DIR / kPlotModuleFile}) {
        if (std::filesystem::is_regular_file(candidate, error)) return candidate;
    }
    return {};
}

std::string NotFound() {
    return std::string("グラフ出力モジュール ") + kPlotModuleFile +
           " が見つからないため --plot は使えません";
}

}  // namespace

std::string PlotUnavailableReason() {
    return FindPlotModule().empty() ? NotFound() : std::string();
}

// The module stays loaded until the process ends: Qt does not expect its
// libraries to be unloaded under it.
std::string WritePlotImage(const TransformDriver& driver, const std::string& path,
                           const AccurateResult* accurate) {
    const std::filesystem::path module = FindPlotModule();
    if (module.empty()) return NotFound();
    void* handle = dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) return std::string("グラフ出力モジュールを読み込めません: ") + dlerror();
    const auto entry = reinterpret_cast<PlotModuleEntry>(dlsym(handle, kPlotModuleEntry));
    if (entry == nullptr)
        return std::string("グラフ出力モジュールが壊れています: ") + module.string();
    std::string reason;
    entry(driver, accurate, path, reason);
    return reason;
}

}  // namespace lapdesk::cli
