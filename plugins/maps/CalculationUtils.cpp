#include "plugins/maps/CalculationUtils.h"

#include "base/error/Exception.h"
#include "base/error/ExceptionUtils.h"

namespace Maps {

void CalculationUtils::refuse(const Tessaly::TopLevelImageExpression& expression,
                              const std::string& problem)
{
    VRK::ExceptionUtils::raise<VRK::Exception>("The expression \"" + expression.toString() + "\" "
                                               + problem);
}

} // namespace Maps
