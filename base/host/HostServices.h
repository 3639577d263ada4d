#ifndef VRK_BASE_HOST_HOSTSERVICES_H
#define VRK_BASE_HOST_HOSTSERVICES_H

#include "base/run/AutoFunctorScheduler.h"
#include "base/run/LightFunctorScheduler.h"
#include "base/run/ParallelFunctorScheduler.h"
#include "base/run/SequentialFunctorScheduler.h"
#include "base/script/dot/GraphvizScriptWriter.h"
#include "base/script/text/DefaultScriptReader.h"
#include "base/script/text/DefaultScriptWriter.h"
#include "base/script/text/DefaultWizardReader.h"
#include "base/script/text/DefaultWizardWriter.h"
#include "base/script/xml/XMLScriptReader.h"
#include "base/script/xml/XMLScriptWriter.h"
#include "base/verify/IntrusiveScriptVerifier.h"
#include "base/verify/NonIntrusiveScriptVerifier.h"

#include <string>

namespace VRK {

class FactoryFarm;

// The host's own schedulers, script verifiers, script and wizard readers and writers.
// The primitives plugin registers them through its registrar, logged in the order of its
// catalogue; the host registers whatever no plugin did, so that it reads, verifies, runs
// and writes scripts with no plugin loaded.
class HostServices {
public:
    // Hands every service to `registrar`, under `group`, in the catalogue's order.
    template <class RegistrarT>
    static void registerEach(RegistrarT& registrar, const std::string& group)
    {
        registrar.template registerFunctorScheduler<AutoFunctorScheduler>("AutoFunctorScheduler",
                                                                          group);
        registrar.template registerFunctorScheduler<LightFunctorScheduler>("LightFunctorScheduler",
                                                                           group);
        registrar.template registerFunctorScheduler<ParallelFunctorScheduler>(
            "ParallelFunctorScheduler", group);
        registrar.template registerFunctorScheduler<SequentialFunctorScheduler>(
            "SequentialFunctorScheduler", group);
        registrar.template registerScriptVerifier<IntrusiveScriptVerifier>(
            "IntrusiveScriptVerifier", group);
        registrar.template registerScriptVerifier<NonIntrusiveScriptVerifier>(
            "NonIntrusiveScriptVerifier", group);
        registrar.template registerScriptReader<DefaultScriptReader>("DefaultScriptReader", group);
        registrar.template registerScriptReader<XMLScriptReader>("XMLScriptReader", group);
        registrar.template registerWizardReader<DefaultWizardReader>("DefaultWizardReader", group);
        registrar.template registerScriptWriter<DefaultScriptWriter>("DefaultScriptWriter", group);
        registrar.template registerScriptWriter<GraphvizScriptWriter>("GraphvizScriptWriter",
                                                                      group);
        registrar.template registerScriptWriter<XMLScriptWriter>("XMLScriptWriter", group);
        registrar.template registerWizardWriter<DefaultWizardWriter>("DefaultWizardWriter", group);
    }

    // Registers, without a log line, each service whose name (or, for script readers and
    // writers, each file extension) `farm` does not hold yet, under the group "Host".
    static void registerMissing(FactoryFarm& farm);
};

} // namespace VRK

#endif
