#ifndef VRK_BASE_SCRIPT_SCRIPTVALUEREADERS_H
#define VRK_BASE_SCRIPT_SCRIPTVALUEREADERS_H

#include "base/data/DataReader.h"
#include "base/parse/ScannerTypes.h"
#include "base/plugin/FactoryFarm.h"

#include <memory>
#include <unordered_map>

namespace VRK {

class BaseType;
class DataEditor;

// The readers of a text script's typed-in values. A script holds thousands of values of
// a few types: the reader factory and each type's creator are looked up once per
// script, not under the factories' locks once per value.
class ScriptValueReaders {
public:
    ScriptValueReaders();

    // A reader of a value of `type` into `editor`; none when no reader is registered.
    std::unique_ptr<DataReader<ScriptScanner>> create(const BaseType& type, DataEditor& editor);

private:
    using Factory = DataReaderFactory<ScriptScanner>;
    using Creator = DataReader<ScriptScanner>* (*)(DataEditor*);

    std::shared_ptr<Factory> factory_;
    // Types are registered once and live as long as the plugin that made them.
    std::unordered_map<const BaseType*, Creator> creators_;
};

} // namespace VRK

#endif
