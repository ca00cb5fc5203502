#include "cls_TypeAdapter.h"
#include "nga_SqliteDatabase.h"
#include "rom_Transporter.h"
#include "store_support.h"

namespace {

using namespace store_test;

// A class whose objects can hold each other, which those of the library do not.
class Link : public mem_AllocationOperators {
public:
    Link() = default;
    explicit Link(cls_ReadVisitor const& visitor) : uid(visitor.GetUid()) {
        cow_ErasedHandle const read(visitor.Memento().ReadObject(NextField(), TypeId()),
                                    [](void* object) { delete static_cast<Link*>(object); });
        read.AssignTo(next);
    }
    void DBWrite(cls_WriteVisitor const& visitor) const {
        if (visitor.StartWrite(TypeId(), uid) == 0) return;
        if (!next.GetPtr()) {
            visitor.Agent().WriteNull(NextField());
            return;
        }
        cls_WriteVisitor const field(visitor, NextField(), &next, nullptr);
        next.ConstGet().DBWrite(field);
    }
    static constexpr unsigned TypeId() { return 0x3E80001; }
    unsigned DynTypeId() const { return TypeId(); }
    static void InitializeMetadata(cls_ClassRegistrar& registrar) {
        registrar.AddClassMD(new cls_TypeAdapter<Link>("Link", 203, cls_RootTypeId))
            .AddAttribute(NextField(), cls_AttributeObject, TypeId(), cls_CollectionNone);
    }

    cow_ArrayCOW<Link, cow_Direct<Link>> next;
    cls_Uid uid = cls_Uid::AllocateUid();

private:
    static cls_FieldHandle NextField() { return cls_FieldHandle(0, cow_String("next")); }
};

class NestedRecords : public Store {
protected:
    void SetUp() override {
        Store::SetUp();
        Link::InitializeMetadata(m_registrar);
    }
    // A chain of so many links; its first row is that of the last link.
    std::string Chain(int links) {
        std::string const path = folder.File("chain.nga");
        Overwrite(path, "");
        Link first;
        for (int i = 1; i < links; ++i) {
            auto* before = new Link;
            before->next = new Link(first);
            first = *before;
            delete before;
        }
        auto const database = nga::SqliteDatabase::Build(path);
        rom_Transporter transporter(*database, m_registrar);
        EXPECT_EQ(transporter.Write(&first, Link::TypeId()), links - 1);
        database->Finish();
        return path;
    }
    // What reading a row is refused with; the number of links if it is not.
    std::string Read(std::string const& path, int oid) {
        auto const database = nga::SqliteDatabase::Open(
            path, static_cast<long long>(std::filesystem::file_size(path)),
            [](nga::CatalogueEntry const&) { return std::optional<rfm_TableMetadata>(); });
        try {
            rom_Transporter transporter(*database, m_registrar);
            cow_ErasedHandle const read = transporter.Read(Link::TypeId(), oid);
            int links = 0;
            for (auto const* link = static_cast<Link const*>(read.ErasedReferent()); link;
                 link = link->next.GetPtr())
                ++links;
            return std::to_string(links);
        } catch (nex_Exception const& exception) {
            return exception.AsString().Text();
        }
    }

private:
    cls_ClassRegistrar m_registrar;
};

TEST_F(NestedRecords, AreReadUpToTheLimit) {
    EXPECT_EQ(Read(Chain(1), 0), "1");
    EXPECT_EQ(Read(Chain(64), 63), "64");
    // A deeper chain is not even written, so one more link is put before it by hand.
    std::string const path = Chain(64);
    Sql(path, "INSERT INTO Link VALUES(64,0x3E80001,63,-1,randomblob(16))");
    EXPECT_EQ(Read(path, 63), "64");
    EXPECT_NE(Read(path, 64).find("nested deeper than 64 levels"), std::string::npos);
}

TEST_F(NestedRecords, AreRefusedInACircle) {
    std::string const path = Chain(5);
    Sql(path, "UPDATE Link SET \"next#ClassID\"=0x3E80001, \"next#OID\"=3 WHERE \"##OID\"=0");
    EXPECT_NE(Read(path, 3).find("part of a circle of references"), std::string::npos);
    Sql(path, "UPDATE Link SET \"next#OID\"=0 WHERE \"##OID\"=0");
    EXPECT_NE(Read(path, 4).find("part of a circle of references"), std::string::npos);
}

}  // namespace
