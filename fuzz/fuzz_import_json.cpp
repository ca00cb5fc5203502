// Damaged JSON: an import either fails with an error and leaves the document, or gives a document
// whose text comes back the same. Nothing else may happen.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "nga_Check.h"
#include "nga_Error.h"
#include "nga_Json.h"
#include "nga_Path.h"
#include "nga_SeparateIdentities.h"
#include "nga_Tree.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const text(reinterpret_cast<char const*>(data), size);
    nga::Document document = nga::Document::New("document");
    document.Materials().Insert("present", new kmaC_Material);
    std::string const before = nga::ExportJson(document);
    try {
        nga::ImportJson(document, text, nga::OnConflict::Replace);
    } catch (nga::Error const&) {
        if (nga::ExportJson(document) != before) std::abort();
        return 0;
    }
    nga::Check(document);
    nga::TreeJson(nga::BuildTree(document, nga::Resolve(document, "")));
    if (nga::SeparateIdentities(document.Model()) != 0) std::abort();
    std::string const exported = nga::ExportJson(document);
    nga::Document again = nga::Document::New("document");
    nga::ImportJson(again, exported);
    if (nga::ExportJson(again) != exported) std::abort();
    return 0;
}
