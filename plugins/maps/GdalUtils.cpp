#include "plugins/maps/GdalUtils.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/UnableToAccessFileException.h"

#include <cpl_error.h>
#include <gdal.h>

#include <mutex>

namespace Maps {

void GdalUtils::registerFormats()
{
    static std::once_flag registered;
    // The library's messages reach the user through the exceptions that quote them,
    // not on the standard error.
    std::call_once(registered, [] {
        GDALAllRegister();
        CPLSetErrorHandler(CPLQuietErrorHandler);
    });
}

std::string GdalUtils::lastError()
{
    const char* message = CPLGetLastErrorMsg();
    std::string text = message ? message : "";
    while (!text.empty() && (text.back() == '.' || text.back() == '\n'))
        text.pop_back();
    return text.empty() ? text : ": " + text;
}

void GdalUtils::fail(const boost::filesystem::path& file, const std::string& problem)
{
    VRK::ExceptionUtils::raise<VRK::UnableToAccessFileException>(
        "The map file \"" + file.string() + "\" can not be " + problem + lastError() + ".");
}

} // namespace Maps
