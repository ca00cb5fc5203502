#include "nga_Start.h"

#include "DDB_NonGeometricAttributes.h"
#include "nga_HostExtension.h"
#include "omu_TypeIds.h"

namespace nga {

namespace {

constexpr std::uint16_t hostComponent = 900;

// clang-format off
constexpr typ_Entry hostRows[] = {
    /* 0 */ {typ_placeholderKind, typ_root, nullptr},
    /* 1 */ {typ_classKind, mdl_ExtensionTypeId, HostExtension::name},
    /* 2 */ {typ_classKind, typ_root, "nga_ConnectorSection"},
    /* 3 */ {typ_classKind, mdl_RepositoryTypeId, "nga_ConnectorSectionContainer"},
};
// clang-format on

}  // namespace

void Start() {
    static bool started = false;
    if (started) return;
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    typ_ArchCompTable::InsertEntry(
        hostComponent, typ_ArchCompEntry(hostRows, sizeof hostRows / sizeof hostRows[0]));
    ddr_Model::RegisterExtension(cow_String(HostExtension::extensionCmd()), HostExtension());
    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    registrar.initClassMetadata(HostExtension::InitializeMetadata, cls_DomainDatabase);
    registrar.initClassMetadata(nga_ConnectorSection::InitializeMetadata, cls_DomainsAll);
    // A domain's classes, and with them their descriptions, come into being when first asked for.
    registrar.Domain(cls_DomainDatabase);
    started = true;
}

}  // namespace nga
