#ifndef VRK_BASE_DATA_BASETYPE_H
#define VRK_BASE_DATA_BASETYPE_H

#include "base/util/Stringable.h"

#include <memory>
#include <string>
#include <vector>

namespace VRK {

class DataEditor;
class DataViewer;

// A type of ports and data: a name, a description and at most one parent.
class BaseType : public Stringable {
public:
    BaseType(const std::string& name, const std::string& description);
    BaseType(const std::string& name, const std::string& description,
             const std::shared_ptr<BaseType>& parent);
    ~BaseType() override;

    void toStream(std::ostream& out, int indent) const override;

    const std::string& getName() const { return name_; }
    const std::string& getDescription() const { return description_; }
    std::shared_ptr<BaseType> getParent() const { return parent_; }

    // True when `other` is this type's direct parent.
    bool isParent(const std::shared_ptr<BaseType>& other) const;
    // True when `other` is this type or one of its ancestors: data of this type can go
    // where `other` is expected.
    bool isKindOf(const std::shared_ptr<BaseType>& other) const;

    // The editor and viewer of this type's data; empty where the type has none.
    virtual std::shared_ptr<DataEditor> createEditor() const;
    virtual std::shared_ptr<DataViewer> createViewer() const;
    // Whether an input "workdir" of this type that a script leaves unbound takes the
    // work directory of its enclosing containers (see WorkdirBinding); false by default.
    virtual bool isWorkdir() const;

    // Every type that exists in the process, in order of creation.
    static std::vector<const BaseType*> getAllTypes();

private:
    std::string name_;
    std::string description_;
    std::shared_ptr<BaseType> parent_;
};

} // namespace VRK

#endif
