#pragma once

#include <map>

#include "rfm_Database.h"

/// A record store in memory: for tests, for data on its way, and as the plainest implementation of
/// the interface.
class rfm_MemoryDatabase : public rfm_WorkDatabase {
public:
    rfm_MemoryDatabase();
    /// Takes over all that another store holds; this one is empty.
    void CopyFrom(rfm_Database& other);
    ~rfm_MemoryDatabase() override;
    rfm_Table* FindTable(unsigned typeId) override;
    rfm_Table& CreateTable(rfm_TableMetadata const& metadata) override;
    std::vector<rfm_Table*> Tables() override;
    rfm_Table& MakeSuccessor(rfm_TableMetadata const& metadata, bool keepFormer) override;
    void Settle(unsigned typeId) override;
    void DropTable(unsigned typeId) override;

private:
    std::map<unsigned, std::unique_ptr<rfm_Table>> m_tables;
    std::map<unsigned, std::unique_ptr<rfm_Table>> m_successors;
};
