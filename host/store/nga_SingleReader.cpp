#include "nga_SingleReader.h"

#include "nex_Exception.h"
#include "nga_StoredFile.h"

namespace nga {

namespace {

constexpr int forgetAfter = 256;

}  // namespace

SingleReader::SingleReader(rfm_Database& database) : m_transporter(database, StoredClasses()) {}

std::optional<cow_ErasedHandle> SingleReader::Read(unsigned typeId, int oid, std::string& failure) {
    // What objects share is read once as long as it is not forgotten.
    if (++m_read % forgetAfter == 0) m_transporter.Forget();
    try {
        return m_transporter.Read(typeId, oid);
    } catch (nex_Exception const& exception) {
        std::string const place = m_transporter.FailedAt();
        failure = (place.empty() ? "" : place + ": ") + std::string(exception.AsString().View());
        m_transporter.Forget();
        return std::nullopt;
    }
}

}  // namespace nga
