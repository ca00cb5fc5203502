#include "nga_Document.h"

#include <filesystem>

#include "nga_Error.h"
#include "nga_HostExtension.h"
#include "nga_Names.h"
#include "nga_SeparateIdentities.h"
#include "nga_Start.h"

#if __has_include("nga_Store.h")
#include "nga_Store.h"
#else
namespace nga {

struct FileStamp {};
struct SaveOptions {};

namespace {

void SaveModel(ddr_Model const&, std::string const& path, SaveOptions const&) {
    throw Error("this build has no record store", path);
}
std::unique_ptr<ddr_Model> LoadModel(std::string const& path, FileStamp*) {
    throw Error("this build has no record store", path);
}

}  // namespace

}  // namespace nga
#endif

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
    auto stamp = std::make_unique<FileStamp>();
    Document document(LoadModel(path, stamp.get()));
    document.m_model->Rename(cow_String(std::string_view(StemOf(path))));
    document.m_file = path;
    document.m_stamp = std::move(stamp);
    return document;
}

void Document::Save() {
    if (m_file.empty())
        throw Error("the document has no file yet", std::string(m_model->Name().View()), 0,
                    "a path to save it under");
    SeparateIdentities(*m_model);
    SaveModel(*m_model, m_file, SaveOptions());
}

void Document::SaveAs(std::string const& path) {
    RequireName(StemOf(path), "the document");
    SeparateIdentities(*m_model);
    SaveModel(*m_model, path, SaveOptions());
    m_file = path;
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
