#include "nga_Document.h"

#include <filesystem>

#include "nga_Error.h"
#include "nga_HostExtension.h"
#include "nga_Names.h"
#include "nga_SeparateIdentities.h"
#include "nga_Start.h"
#include "nga_Store.h"

namespace nga {

Document::Document(std::unique_ptr<ddr_Model> model) : m_model(std::move(model)) {}
Document::Document(Document&&) noexcept = default;
Document& Document::operator=(Document&&) noexcept = default;
Document::~Document() = default;

Document Document::New(std::string const& name) {
    Start();
    RequireName(name, "the document");
    return Document(std::make_unique<ddr_Model>(cow_String(std::string_view(name))));
}

Document Document::Open(std::string const& path) {
    Start();
    FileStamp stamp;
    Document document(LoadModel(path, &stamp));
    document.m_file = path;
    document.m_stamp = stamp;
    return document;
}

void Document::Write(std::string const& path, std::optional<FileStamp> const& expected) {
    SeparateIdentities(*m_model);
    SaveOptions options;
    options.expected = expected;
    options.isEmpty = [](mdl_Extension const& extension) {
        return extension.DynTypeId() == HostExtension::TypeId() &&
               static_cast<HostExtension const&>(extension).IsEmpty();
    };
    m_stamp = SaveModel(*m_model, path, options);
    m_file = path;
}

void Document::Save() {
    if (m_file.empty())
        throw Error("the document has no file yet", Name(), 0, "a path to save it under");
    Write(m_file, m_stamp);
}

void Document::SaveAs(std::string const& path) {
    RequireName(StemOf(path), "the document");
    Write(path, std::nullopt);
    m_model->Rename(cow_String(std::string_view(StemOf(path))));
}

void Document::SaveAsNew(std::string const& path) {
    RequireName(StemOf(path), "the document");
    Write(path, FileStamp());
    m_model->Rename(cow_String(std::string_view(StemOf(path))));
}

kmaC_MaterialContainer& Document::Materials() {
    return static_cast<kmaC_MaterialContainer&>(
        m_model->GetExtension(cow_String(ddr_Model::materialCmd())).GetValue());
}
kmaC_MaterialContainer const& Document::Materials() const {
    return static_cast<kmaC_MaterialContainer const&>(
        m_model->ConstGetExtension(cow_String(ddr_Model::materialCmd())).ConstGetValue());
}
klcC_LoadCaseCont& Document::LoadCases() {
    return static_cast<HostExtension&>(
               m_model->GetExtension(cow_String(HostExtension::extensionCmd())))
        .loadCases;
}
klcC_LoadCaseCont const& Document::LoadCases() const {
    return static_cast<HostExtension const&>(
               m_model->ConstGetExtension(cow_String(HostExtension::extensionCmd())))
        .loadCases;
}

std::string Document::StemOf(std::string const& path) {
    return std::filesystem::path(path).stem().string();
}

}  // namespace nga
