#include "plugins/maps/LoadLookupTableFunctor.h"

#include "plugins/maps/LookupTableCsvReader.h"
#include "plugins/maps/TableFileEditor.h"
#include "plugins/maps/TableFileType.h"
#include "plugins/prim/files/FilenamedFunctorUtils.h"
#include "plugins/prim/files/FilenamedFunctorVerifierAdapter.h"
#include "tessaly/images/LookupTableType.h"

namespace Maps {

LoadLookupTable::LoadLookupTable()
    : Prim::FilenamedFunctor(
        "LoadLookupTable", "Read a lookup table from a comma-separated file of keys and values.",
        "filename", "workdir",
        Prim::FilenamedFunctorUtils::verifierOf(&Prim::FilenamedFunctorVerifierAdapter::canReadFile,
                                                TableFileEditor::getExtensions()),
        "suffixDigits", "step", nullptr)
{
    Prim::FilenamedFunctorUtils::addFilePorts(
        *this, TableFileType::getInstance(),
        "Table file to read: lines of \"key,value\", after an optional header.");
    addOutputPort("table", "Table read from the file.", Tessaly::LookupTableType::getInstance());
}

LoadLookupTable::~LoadLookupTable() = default;

void LoadLookupTable::runImpl()
{
    const boost::filesystem::path file = Prim::FilenamedFunctorUtils::getFile(*this);
    Prim::FilenamedFunctorVerifierAdapter::requireReadable(file);
    setOutputPortValue<Tessaly::LookupTableData>("table", LookupTableCsvReader::read(file));
}

} // namespace Maps
