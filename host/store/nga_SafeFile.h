#pragma once

#include <string>

#include "nga_FileStamp.h"
#include "nga_SignalCleanup.h"

namespace nga {

/// A file in the making that takes the place of another at once: under the target's name stands the
/// whole old file until Commit, and the whole new one after. Until then it has a name of its own in
/// the same folder, which goes with this object.
///
/// The name is ".NAME.PID-N.nga-part". A signal that ends the process takes it along; a kill leaves
/// it behind, and the next save to the same target removes it, as nobody holds its lock any more.
///
/// Failures are raised as StoreError under the path that was given.
class SafeFile {
public:
    /// Follows a symbolic link, so that the link stays and its target changes.
    explicit SafeFile(std::string const& path);
    /// Raises what stands against making a file for the path, as far as can be told without making
    /// one.
    static void RequireRoom(std::string const& path);
    SafeFile(SafeFile const&) = delete;
    SafeFile& operator=(SafeFile const&) = delete;

    /// Where to write.
    std::string const& PartPath() const { return m_part.path; }
    /// The state of the file whose place is taken.
    FileStamp const& Former() const { return m_former; }
    /// Writes all to the disk and takes the target's place, provided that this is still as \ref
    /// Former has it. Gives the state of the new file.
    FileStamp Commit();
    /// Whether the new file stands in its place, also where \ref Commit failed behind that.
    bool TookPlace() const { return m_part.path.empty(); }

private:
    /// The file in the making; a member, so that it goes when the constructor fails as well.
    struct Part {
        std::string path;  ///< empty before it is made and after it took the target's place
        int file = -1;
        SignalCleanup cleanup;

        Part() = default;
        ~Part();
        Part(Part const&) = delete;
        Part& operator=(Part const&) = delete;
    };

    enum class For { Writing, Asking };
    SafeFile(std::string const& path, For what);

    [[noreturn]] void Fail(std::string const& what, int system) const;
    void Make();
    void RemoveStale() const;
    std::string PartPrefix() const;

    std::string m_path;    ///< as given, for messages
    std::string m_target;  ///< behind all links
    std::string m_folder;
    std::string m_name;
    FileStamp m_former;
    Part m_part;
};

/// Raises unless no journal of another program lies beside the file, which would be played into it.
void RefuseJournals(std::string const& path);

}  // namespace nga
