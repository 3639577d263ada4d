#include "plugins/prim/registry/PrimRegistrar.h"

#include "base/host/HostServices.h"
#include "base/parse/ScannerTypes.h"
#include "base/plugin/Plugin.h"
#include "plugins/prim/carriers/BoolFunctor.h"
#include "plugins/prim/carriers/DoubleFunctor.h"
#include "plugins/prim/carriers/FolderFunctor.h"
#include "plugins/prim/carriers/FolderJunctionFunctor.h"
#include "plugins/prim/carriers/IntFunctor.h"
#include "plugins/prim/carriers/IntSetFunctor.h"
#include "plugins/prim/carriers/LogTagFunctor.h"
#include "plugins/prim/carriers/NameFunctor.h"
#include "plugins/prim/carriers/NonNegativeIntFunctor.h"
#include "plugins/prim/carriers/PathFunctor.h"
#include "plugins/prim/carriers/PercentFunctor.h"
#include "plugins/prim/carriers/PositiveIntFunctor.h"
#include "plugins/prim/carriers/StringFunctor.h"
#include "plugins/prim/carriers/StringJunctionFunctor.h"
#include "plugins/prim/carriers/ValueJunctionFunctor.h"
#include "plugins/prim/convert/BoolToDoubleDataConverter.h"
#include "plugins/prim/convert/BoolToIntDataConverter.h"
#include "plugins/prim/convert/BoolToNonNegativeIntDataConverter.h"
#include "plugins/prim/convert/DoubleToBoolDataConverter.h"
#include "plugins/prim/convert/DoubleToIntDataConverter.h"
#include "plugins/prim/convert/DoubleToNonNegativeIntDataConverter.h"
#include "plugins/prim/convert/DoubleToPositiveIntDataConverter.h"
#include "plugins/prim/convert/FolderToStringDataConverter.h"
#include "plugins/prim/convert/LookupTableToIntSetDataConverter.h"
#include "plugins/prim/convert/StringToFolderDataConverter.h"
#include "plugins/prim/environment/CreateStringFunctor.h"
#include "plugins/prim/environment/NameValueFunctor.h"
#include "plugins/prim/environment/NumberFolderFunctor.h"
#include "plugins/prim/environment/NumberPathFunctor.h"
#include "plugins/prim/environment/NumberStringFunctor.h"
#include "plugins/prim/environment/NumberValueFunctor.h"
#include "plugins/prim/environment/SelectFolderFunctor.h"
#include "plugins/prim/environment/SelectPathFunctor.h"
#include "plugins/prim/environment/SelectStringFunctor.h"
#include "plugins/prim/files/FolderData.h"
#include "plugins/prim/files/FolderEditor.h"
#include "plugins/prim/files/FolderReader.h"
#include "plugins/prim/files/FolderWriter.h"
#include "plugins/prim/files/PathData.h"
#include "plugins/prim/files/PathEditor.h"
#include "plugins/prim/files/PathReader.h"
#include "plugins/prim/files/PathWriter.h"
#include "plugins/prim/files/WorkdirData.h"
#include "plugins/prim/files/WorkdirFunctor.h"
#include "plugins/prim/flow/DoWhileFunctor.h"
#include "plugins/prim/flow/ExitFunctor.h"
#include "plugins/prim/flow/ForFunctor.h"
#include "plugins/prim/flow/GroupFunctor.h"
#include "plugins/prim/flow/IfNotThenFunctor.h"
#include "plugins/prim/flow/IfThenFunctor.h"
#include "plugins/prim/flow/LogPolicyFunctor.h"
#include "plugins/prim/flow/MuxValueFunctor.h"
#include "plugins/prim/flow/ProcessorPolicyFunctor.h"
#include "plugins/prim/flow/RepeatFunctor.h"
#include "plugins/prim/flow/SetWhileConditionFunctor.h"
#include "plugins/prim/flow/SkipOnErrorFunctor.h"
#include "plugins/prim/flow/StepFunctor.h"
#include "plugins/prim/flow/WhileFunctor.h"
#include "plugins/prim/formula/ImageExpressionData.h"
#include "plugins/prim/formula/ImageExpressionEditor.h"
#include "plugins/prim/formula/ImageExpressionReader.h"
#include "plugins/prim/formula/ImageExpressionWriter.h"
#include "plugins/prim/process/RunExternalProcessFunctor.h"
#include "plugins/prim/registry/PrimTypes.h"
#include "plugins/prim/values/keywords/BoolData.h"
#include "plugins/prim/values/keywords/BoolEditor.h"
#include "plugins/prim/values/keywords/BoolReader.h"
#include "plugins/prim/values/keywords/BoolWriter.h"
#include "plugins/prim/values/keywords/LogTagData.h"
#include "plugins/prim/values/keywords/LogTagEditor.h"
#include "plugins/prim/values/keywords/LogTagReader.h"
#include "plugins/prim/values/keywords/LogTagWriter.h"
#include "plugins/prim/values/numbers/DoubleData.h"
#include "plugins/prim/values/numbers/DoubleEditor.h"
#include "plugins/prim/values/numbers/DoubleReader.h"
#include "plugins/prim/values/numbers/DoubleWriter.h"
#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/numbers/IntEditor.h"
#include "plugins/prim/values/numbers/IntReader.h"
#include "plugins/prim/values/numbers/IntSetData.h"
#include "plugins/prim/values/numbers/IntSetEditor.h"
#include "plugins/prim/values/numbers/IntSetReader.h"
#include "plugins/prim/values/numbers/IntSetWriter.h"
#include "plugins/prim/values/numbers/IntWriter.h"
#include "plugins/prim/values/numbers/NonNegativeIntData.h"
#include "plugins/prim/values/numbers/NonNegativeIntEditor.h"
#include "plugins/prim/values/numbers/NonNegativeIntReader.h"
#include "plugins/prim/values/numbers/NonNegativeIntWriter.h"
#include "plugins/prim/values/numbers/PercentData.h"
#include "plugins/prim/values/numbers/PercentEditor.h"
#include "plugins/prim/values/numbers/PercentReader.h"
#include "plugins/prim/values/numbers/PercentWriter.h"
#include "plugins/prim/values/numbers/PositiveIntData.h"
#include "plugins/prim/values/numbers/PositiveIntEditor.h"
#include "plugins/prim/values/numbers/PositiveIntReader.h"
#include "plugins/prim/values/numbers/PositiveIntWriter.h"
#include "plugins/prim/values/texts/NameData.h"
#include "plugins/prim/values/texts/NameEditor.h"
#include "plugins/prim/values/texts/NameReader.h"
#include "plugins/prim/values/texts/NameWriter.h"
#include "plugins/prim/values/texts/StringData.h"
#include "plugins/prim/values/texts/StringEditor.h"
#include "plugins/prim/values/texts/StringReader.h"
#include "plugins/prim/values/texts/StringWriter.h"

namespace Prim {

namespace {

// The host's services come first, under the plugin's own group.
void registerHostServices(PrimRegistrar& registrar)
{
    VRK::HostServices::registerEach(registrar, "Prim");
}

// Catalogue order: alphabetical, except "DoWhile" after "MuxValue" and "ValueJunction"
// before "StringJunction".
void registerFunctors(PrimRegistrar& registrar)
{
    registrar.registerFunctor<Bool>("Bool", "Map Algebra (Suppl.)");
    registrar.registerFunctor<CreateString>("CreateString", "Map Algebra");
    registrar.registerFunctor<Double>("Double", "Map Algebra (Suppl.)");
    registrar.registerFunctor<Exit>("Exit", "Control");
    registrar.registerFunctor<Folder>("Folder", "Map Algebra (Suppl.)");
    registrar.registerFunctor<FolderJunction>("FolderJunction", "Control");
    registrar.registerFunctor<For>("For", "Control");
    registrar.registerFunctor<Group>("Group", "Control", {"Block"});
    registrar.registerFunctor<IfNotThen>("IfNotThen", "Control");
    registrar.registerFunctor<IfThen>("IfThen", "Control");
    registrar.registerFunctor<Int>("Int", "Map Algebra (Suppl.)");
    registrar.registerFunctor<IntSet>("IntSet", "Map Algebra (Suppl.)", {"IntList"});
    registrar.registerFunctor<LogPolicy>("LogPolicy", "Control");
    registrar.registerFunctor<LogTag>("LogTag", "Control (Suppl.)");
    registrar.registerFunctor<MuxValue>("MuxValue", "Control", {"MuxDouble"});
    registrar.registerFunctor<DoWhile>("DoWhile", "Control");
    registrar.registerFunctor<Name>("Name", "Map Algebra (Suppl.)");
    registrar.registerFunctor<NameValue>("NameValue", "Map Algebra (Suppl.)");
    registrar.registerFunctor<NonNegativeInt>("NonNegativeInt", "Map Algebra (Suppl.)");
    registrar.registerFunctor<NumberFolder>("NumberFolder", "Map Algebra (Suppl.)");
    registrar.registerFunctor<NumberPath>("NumberPath", "Stack (Suppl.)");
    registrar.registerFunctor<NumberString>("NumberString", "Map Algebra (Suppl.)");
    registrar.registerFunctor<NumberValue>("NumberValue", "Map Algebra (Suppl.)");
    registrar.registerFunctor<Path>("Path", "Map Algebra (Suppl.)");
    registrar.registerFunctor<Percent>("Percent", "Map Algebra (Suppl.)");
    registrar.registerFunctor<PositiveInt>("PositiveInt", "Map Algebra (Suppl.)");
    registrar.registerFunctor<ProcessorPolicy>("ProcessorPolicy", "Control");
    registrar.registerFunctor<Repeat>("Repeat", "Control");
    registrar.registerFunctor<RunExternalProcess>("RunExternalProcess", "Control");
    registrar.registerFunctor<SelectFolder>("SelectFolder", "Stack");
    registrar.registerFunctor<SelectPath>("SelectPath", "Stack");
    registrar.registerFunctor<SelectString>("SelectString", "Stack");
    registrar.registerFunctor<SetWhileCondition>("SetWhileCondition", "Control");
    registrar.registerFunctor<SkipOnError>("SkipOnError", "Control");
    registrar.registerFunctor<Step>("Step", "Control");
    registrar.registerFunctor<String>("String", "Map Algebra (Suppl.)");
    registrar.registerFunctor<ValueJunction>("ValueJunction", "Control",
                                             {"JoinDouble", "JoinValue"});
    registrar.registerFunctor<StringJunction>("StringJunction", "Control");
    registrar.registerFunctor<Workdir>("Workdir", "Input/Output");
    registrar.registerFunctor<While>("While", "Control");
}

// The types come first, so that the host can list them before any script names one.
void registerDataClasses(PrimRegistrar& registrar)
{
    PrimTypes::instantiateAll();
    registrar.registerData<BoolData>();
    registrar.registerData<DoubleData>();
    registrar.registerData<FolderData>();
    registrar.registerData<ImageExpressionData>();
    registrar.registerData<IntData>();
    registrar.registerData<IntSetData>();
    registrar.registerData<LogTagData>();
    registrar.registerData<NameData>();
    registrar.registerData<NonNegativeIntData>();
    registrar.registerData<PathData>();
    registrar.registerData<PercentData>();
    registrar.registerData<PositiveIntData>();
    registrar.registerData<StringData>();
    registrar.registerData<WorkdirData>();
}

void registerDataHolders(PrimRegistrar& registrar)
{
    registrar.registerDataHolder<BoolEditor>();
    registrar.registerDataHolder<DoubleEditor>();
    registrar.registerDataHolder<FolderEditor>();
    registrar.registerDataHolder<ImageExpressionEditor>();
    registrar.registerDataHolder<IntEditor>();
    registrar.registerDataHolder<IntSetEditor>();
    registrar.registerDataHolder<LogTagEditor>();
    registrar.registerDataHolder<NameEditor>();
    registrar.registerDataHolder<NonNegativeIntEditor>();
    registrar.registerDataHolder<PathEditor>();
    registrar.registerDataHolder<PercentEditor>();
    registrar.registerDataHolder<PositiveIntEditor>();
    registrar.registerDataHolder<StringEditor>();
}

// The readers of one scanner, named by the type they read.
template <class ScannerT>
void registerDataReadersFor(PrimRegistrar& registrar, const std::string& scanner)
{
    const std::string algebra = "Map Algebra (Suppl.)";
    const std::string control = "Control (Suppl.)";
    registrar.registerDataReader<BoolReader<ScannerT>, ScannerT>("Bool", algebra, scanner);
    registrar.registerDataReader<DoubleReader<ScannerT>, ScannerT>("Double", algebra, scanner);
    registrar.registerDataReader<FolderReader<ScannerT>, ScannerT>("Folder", algebra, scanner);
    registrar.registerDataReader<IntReader<ScannerT>, ScannerT>("Int", algebra, scanner);
    registrar.registerDataReader<IntSetReader<ScannerT>, ScannerT>("IntSet", algebra, scanner);
    registrar.registerDataReader<LogTagReader<ScannerT>, ScannerT>("LogTag", control, scanner);
    registrar.registerDataReader<NameReader<ScannerT>, ScannerT>("Name", algebra, scanner);
    registrar.registerDataReader<NonNegativeIntReader<ScannerT>, ScannerT>(
        "NonNegativeInt", algebra, scanner);
    registrar.registerDataReader<PathReader<ScannerT>, ScannerT>("Path", algebra, scanner);
    registrar.registerDataReader<PercentReader<ScannerT>, ScannerT>("Percent", algebra, scanner);
    registrar.registerDataReader<PositiveIntReader<ScannerT>, ScannerT>(
        "PositiveInt", algebra, scanner);
    registrar.registerDataReader<StringReader<ScannerT>, ScannerT>("String", algebra, scanner);
}

// The formula reader of each scanner comes after all the others.
void registerDataReaders(PrimRegistrar& registrar)
{
    registerDataReadersFor<VRK::ScriptScanner>(registrar, VRK::ScriptScannerName);
    registerDataReadersFor<VRK::PlainScanner>(registrar, VRK::PlainScannerName);
    const std::string algebra = "Map Algebra (Suppl.)";
    registrar.registerDataReader<ImageExpressionReader<VRK::ScriptScanner>, VRK::ScriptScanner>(
        "ImageExpression", algebra, VRK::ScriptScannerName);
    registrar.registerDataReader<ImageExpressionReader<VRK::PlainScanner>, VRK::PlainScanner>(
        "ImageExpression", algebra, VRK::PlainScannerName);
}

void registerDataWriters(PrimRegistrar& registrar)
{
    const std::string algebra = "Map Algebra (Suppl.)";
    const std::string control = "Control (Suppl.)";
    registrar.registerDataWriter<BoolWriter>("Bool", algebra);
    registrar.registerDataWriter<DoubleWriter>("Double", algebra);
    registrar.registerDataWriter<FolderWriter>("Folder", algebra);
    registrar.registerDataWriter<ImageExpressionWriter>("ImageExpression", algebra);
    registrar.registerDataWriter<IntSetWriter>("IntSet", algebra);
    registrar.registerDataWriter<IntWriter>("Int", algebra);
    registrar.registerDataWriter<LogTagWriter>("LogTag", control);
    registrar.registerDataWriter<NameWriter>("Name", algebra);
    registrar.registerDataWriter<NonNegativeIntWriter>("NonNegativeInt", algebra);
    registrar.registerDataWriter<PathWriter>("Path", algebra);
    registrar.registerDataWriter<PercentWriter>("Percent", algebra);
    registrar.registerDataWriter<PositiveIntWriter>("PositiveInt", algebra);
    registrar.registerDataWriter<StringWriter>("String", algebra);
}

void registerDataConverters(PrimRegistrar& registrar)
{
    const std::string algebra = "Map Algebra (Suppl.)";
    registrar.registerDataConverter<BoolToDoubleDataConverter>(algebra, "Bool", "Double");
    registrar.registerDataConverter<BoolToIntDataConverter>(algebra, "Bool", "Int");
    registrar.registerDataConverter<BoolToNonNegativeIntDataConverter>(algebra, "Bool",
                                                                       "NonNegativeInt");
    registrar.registerDataConverter<DoubleToBoolDataConverter>(algebra, "Double", "Bool");
    registrar.registerDataConverter<DoubleToIntDataConverter>(algebra, "Double", "Int");
    registrar.registerDataConverter<DoubleToNonNegativeIntDataConverter>(algebra, "Double",
                                                                         "NonNegativeInt");
    registrar.registerDataConverter<DoubleToPositiveIntDataConverter>(algebra, "Double",
                                                                      "PositiveInt");
    registrar.registerDataConverter<LookupTableToIntSetDataConverter>(algebra, "LookupTable",
                                                                      "IntSet");
    registrar.registerDataConverter<FolderToStringDataConverter>(algebra, "Folder", "String");
    registrar.registerDataConverter<StringToFolderDataConverter>(algebra, "String", "Folder");
}

} // namespace

} // namespace Prim

// The catalogue is filled in a fixed order; a refused entry is logged and the next
// one still registers.
extern "C" void registerPrimPlugin(VRK::Plugin& plugin)
{
    Prim::PrimRegistrar registrar(plugin.getFactoryFarm());
    Prim::registerHostServices(registrar);
    Prim::registerFunctors(registrar);
    Prim::registerDataClasses(registrar);
    Prim::registerDataHolders(registrar);
    Prim::registerDataReaders(registrar);
    Prim::registerDataWriters(registrar);
    Prim::registerDataConverters(registrar);
}

// Entries live as long as the process: there is nothing to undo.
extern "C" void unregisterPrimPlugin(VRK::Plugin&) {}
