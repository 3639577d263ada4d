#include "plugins/maps/SaveLookupTableFunctor.h"

#include "plugins/maps/LookupTableCsvWriter.h"
#include "plugins/maps/TableFileEditor.h"
#include "plugins/maps/TableFileType.h"
#include "plugins/prim/files/FilenamedFunctorUtils.h"
#include "plugins/prim/files/FilenamedFunctorVerifierAdapter.h"
#include "tessaly/images/LookupTableData.h"
#include "tessaly/images/LookupTableType.h"

namespace Maps {

SaveLookupTable::SaveLookupTable()
    : Prim::FilenamedFunctor(
        "SaveLookupTable", "Write a lookup table to a comma-separated file of keys and values.",
        "filename", "workdir",
        Prim::FilenamedFunctorUtils::verifierOf(
            &Prim::FilenamedFunctorVerifierAdapter::canWriteFile, TableFileEditor::getExtensions()),
        "suffixDigits", "step", nullptr)
{
    addInputPort("table", "Table to write.", Tessaly::LookupTableType::getInstance(), false);
    Prim::FilenamedFunctorUtils::addFilePorts(*this, TableFileType::getInstance(),
                                              "Table file to write.");
}

SaveLookupTable::~SaveLookupTable() = default;

void SaveLookupTable::runImpl()
{
    const std::shared_ptr<const Tessaly::LookupTable>& table =
        getInputPortValue<Tessaly::LookupTableData>("table");
    const boost::filesystem::path file = Prim::FilenamedFunctorUtils::getFile(*this);
    Prim::FilenamedFunctorVerifierAdapter::requireWritable(file);
    LookupTableCsvWriter::write(*table, file);
}

} // namespace Maps
