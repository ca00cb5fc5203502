#include "samples.h"

#include "nga_Start.h"

namespace {

atr_String SampleText(int code) {
    return atr_String(code == 1   ? "The count must not be negative."
                      : code == 2 ? "The rank must not be negative."
                      : code == 3 ? "The size must not be negative."
                                  : "");
}
[[noreturn]] void SampleFail(int code) {
    nex_TextException(SampleText(code)).Throw("samples", code);
}

mdl_Module const sampleModule = {"smp", SampleText, SampleFail};

}  // namespace

DD_DEFINE_ABSTRACT(SampleBase, sampleModule)
SampleBase::SampleBase() = default;
SampleBase::SampleBase(SampleBase const&) = default;
SampleBase& SampleBase::operator=(SampleBase const&) = default;
SampleBase::~SampleBase() = default;
SampleBase::SampleBase(cls_ReadVisitor const& visitor) { Description().ReadFields(this, visitor); }

DD_DEFINE(SampleLeaf, sampleModule)
void SampleLeaf::Rules(mdl_RuleVisitor& v) const { v.Rule(rank >= 0, 2); }

DD_DEFINE_ROOT_UNSCRIPTED(SamplePart, sampleModule)
void SamplePart::Rules(mdl_RuleVisitor& v) const { v.Rule(size >= 0, 3); }

DD_DEFINE(SampleAll, sampleModule)
void SampleAll::Rules(mdl_RuleVisitor& v) const {
    v.Rule(count >= 0, 1);
    v.Rule(rank >= 0, 2);
    v.Ask(part);
    v.Ask(leaf);
    v.AskEach(parts);
    v.AskEach(pieces);
}

void StartSamples() {
    nga::Start();
    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    registrar.initClassMetadata(SampleBase::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(SampleLeaf::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(SamplePart::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(SampleAll::InitializeMetadata, cls_DomainsAll);
    registrar.Domain(cls_DomainDatabase);
    registrar.Domain(cls_DomainMemory);
}
