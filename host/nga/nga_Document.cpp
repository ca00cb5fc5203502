#include "nga_Document.h"

#include <filesystem>

#include "nga_Collection.h"
#include "nga_Error.h"
#include "nga_HostExtension.h"
#include "nga_Names.h"
#include "nga_SeparateIdentities.h"
#include "nga_Start.h"
#include "nga_Store.h"

namespace nga {

namespace {

/// Where a name leads to no object: "materials['steel']". Empty if every name leads to one, as all
/// that walks a document takes for granted.
std::string NameOfNothing(ddr_Model const& model) {
    std::string place;
    for (Collection const* collection : Collection::All())
        collection->Each(model, [&](cow_String const& key, void const* object) {
            if (!object && place.empty())
                place = std::string(collection->Name()) + "['" + std::string(key.View()) + "']";
        });
    return place;
}

}  // namespace

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
    Leftovers unnamed;
    Document document(LoadModel(path, &stamp, &unnamed));
    document.m_unnamed = std::move(unnamed);
    if (std::string const place = NameOfNothing(*document.m_model); !place.empty())
        throw StoreError(path, place + " is a name without an object");
    document.m_file = path;
    document.m_stamp = stamp;
    return document;
}

void Document::Write(std::string const& path, FileStamp const& expected) {
    if (std::string const place = NameOfNothing(*m_model); !place.empty())
        throw Error("the name has no object, so nothing was saved", place);
    if (!m_unnamed.unreadable.empty())
        throw Error(
            "the file has an object that no name leads to and that cannot be read, and "
            "saving would lose it",
            m_unnamed.unreadable.front(), 0,
            "an export and an import into a new file, which leave such objects behind");
    std::vector<TypedObject> unnamed;
    for (Leftovers::Object const& each : m_unnamed.objects)
        unnamed.push_back({each.typeId, each.object.ErasedReferent()});
    SeparateIdentities(*m_model, unnamed);
    SaveOptions options;
    options.leftovers = &m_unnamed;
    options.expected = expected;
    options.isEmpty = [](mdl_Extension const& extension) {
        return extension.DynTypeId() == HostExtension::TypeId() &&
               static_cast<HostExtension const&>(extension).IsEmpty();
    };
    std::string file = path;
    m_stamp = SaveModel(*m_model, path, options);
    m_file.swap(file);
}

void Document::Save() {
    if (m_file.empty())
        throw Error("the document has no file yet", Name(), 0, "a path to save it under");
    Write(m_file, m_stamp);
}

void Document::SaveUnder(std::string const& path, FileStamp const& expected) {
    std::string const stem = StemOf(path);
    RequireName(stem, "the document");
    // Made before the file is: once that stands, nothing may fail any more.
    cow_String const name{std::string_view(stem)};
    Write(path, expected);
    m_model->Rename(name);
}

void Document::SaveAs(std::string const& path) {
    // As it stands now; what comes there while the document is written is somebody else's.
    SaveUnder(path, FileStamp::Of(path));
}

void Document::SaveAsNew(std::string const& path) { SaveUnder(path, FileStamp()); }

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
