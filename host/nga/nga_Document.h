#pragma once

#include <memory>
#include <string>

#include "ddr_Model.h"
#include "klcC_LoadCase.h"
#include "kmaC_Material.h"
#include "nga_FileStamp.h"
#include "nga_Store.h"

namespace nga {

/// One model that a person works on, and the file that it came from or goes to. It owns the model
/// and with it every object in it. A document and all copies of its objects belong to one thread.
class Document {
public:
    /// A document in memory, without a file. The name is checked as names of objects are.
    static Document New(std::string const& name);
    /// The document of a file, named by the file's stem. Opening never writes.
    static Document Open(std::string const& path);

    Document(Document&&) noexcept;
    Document& operator=(Document&&) noexcept;
    ~Document();

    /// Writes the document to its file, whole or not at all; refuses if somebody else changed the
    /// file meanwhile. A document without a file needs SaveAs.
    void Save();
    /// Writes it to another file, which becomes its file and names it. What stands there at
    /// the call is replaced; what comes there during it is not, and the save fails.
    void SaveAs(std::string const& path);
    /// The same, but refuses a file that is there already.
    void SaveAsNew(std::string const& path);

    /// Empty for a document without a file.
    std::string const& File() const { return m_file; }
    std::string Name() const { return std::string(m_model->Name().View()); }
    ddr_Model& Model() { return *m_model; }
    ddr_Model const& Model() const { return *m_model; }

    kmaC_MaterialContainer& Materials();
    kmaC_MaterialContainer const& Materials() const;
    /// What came with the file and no name leads to. It goes along with every save, unchanged.
    Leftovers const& Unnamed() const { return m_unnamed; }

    klcC_LoadCaseCont& LoadCases();
    klcC_LoadCaseCont const& LoadCases() const;

    /// "bracket" for "parts/bracket.nga": the last part of a path without its ending.
    static std::string StemOf(std::string const& path);

private:
    explicit Document(std::unique_ptr<ddr_Model> model);
    void SaveUnder(std::string const& path, FileStamp const& expected);
    void Write(std::string const& path, FileStamp const& expected);

    std::unique_ptr<ddr_Model> m_model;
    Leftovers m_unnamed;
    std::string m_file;
    /// How the file was when this document last met it.
    FileStamp m_stamp;
};

}  // namespace nga
