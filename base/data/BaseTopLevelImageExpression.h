#ifndef VRK_BASE_DATA_BASETOPLEVELIMAGEEXPRESSION_H
#define VRK_BASE_DATA_BASETOPLEVELIMAGEEXPRESSION_H

namespace VRK {

// A whole parsed formula, as the host knows it: the map-algebra library above the host
// supplies the concrete class, so editors can hand formulas around without it.
class BaseTopLevelImageExpression {
public:
    BaseTopLevelImageExpression() = default;
    BaseTopLevelImageExpression(const BaseTopLevelImageExpression&) = default;
    BaseTopLevelImageExpression& operator=(const BaseTopLevelImageExpression&) = default;
    virtual ~BaseTopLevelImageExpression();
};

} // namespace VRK

#endif
