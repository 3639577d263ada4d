#ifndef VRK_PLUGINS_MAPS_CALCULATIONUTILS_H
#define VRK_PLUGINS_MAPS_CALCULATIONUTILS_H

#include "tessaly/images/TopLevelImageExpression.h"

#include <string>

namespace Maps {

// What the calculating functors share.
class CalculationUtils {
public:
    // Fails with "The expression "FORMULA" " and `problem`.
    [[noreturn]] static void refuse(const Tessaly::TopLevelImageExpression& expression,
                                    const std::string& problem);
};

} // namespace Maps

#endif
