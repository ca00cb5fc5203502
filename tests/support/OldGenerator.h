#pragma once

#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "DDB_NonGeometricAttributes.h"
#include "module/OldClassFacts.h"
#include "support/OldDatabase.h"
#include "support/OldDomains.h"

namespace old_test {

/// Builds a database as a program of a schema number would have left it: an object of every class
/// that was alive then, with seeded random content, under the names of its repository. Layouts are
/// those that the library registers.
class OldGenerator {
public:
    /// How complete the objects are.
    enum class Fields { All, Some };

    OldGenerator(int schema, unsigned seed, Fields which = Fields::All)
        : m_schema(schema), m_random(seed), m_which(which) {
        for (auto const& entry : omi_Singleton<dbc_OldClassRegistrar>::Instance().Entries()) {
            auto own = std::make_unique<cls_ClassRegistrar>();
            entry.holder->GetRef().InitializeMetadata(*own);
            for (cls_ClassMetadata const* metadata : own->Classes())
                m_old[metadata->TypeId()][metadata->Version()] = metadata;
            m_owned.push_back(std::move(own));
        }
        db.Table(rom_Layout::OfList());
        db.Table(rom_Layout::OfMap());
        db.Table(rom_Layout::OfListEntry());
        db.Table(rom_Layout::OfMapEntry());
        MakeMaterials();
        MakeRepository("amplitudes", 0x2440017, 0x2440002);
        MakeRepository("profiles", 0x2640014, 0x2640001);
        MakeRepository("filters", 0x3510001, 0x3510002);
        MakeConnectors();
        MakeLoadCases();
    }

    /// The names under each repository.
    std::map<std::string, std::vector<std::string>> names;
    /// How many connector behaviours there are; the first of each class stands in a section, the
    /// others in none.
    int connectors = 0;
    OldDatabase db;

private:
    static cls_ClassRegistrar const& Current() {
        return omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
    }

    /// The class as it was; null if it was not there.
    cls_ClassMetadata const* At(unsigned typeId) const {
        cls_ClassMetadata const* const current = Current().Find(typeId);
        auto const versions = m_old.find(typeId);
        // Behaviours of connectors took their names together.
        if (typeId >= 0x2A80017 && typeId <= 0x2A8001F && m_schema < 811) return nullptr;
        if (versions == m_old.end())
            return typeId == 0x2A8002E && m_schema < 836 ? nullptr : current;
        cls_ClassMetadata const* found = nullptr;
        for (OldClassFact const& fact : facts) {
            if (fact.typeId != typeId || fact.version > m_schema) continue;
            bool const isOver = fact.next ? fact.next <= m_schema : EndOf(fact) <= m_schema;
            found = isOver ? nullptr : versions->second.at(fact.version);
            if (found) return found;
            if (fact.next == 0 && !current) return nullptr;
        }
        int const oldest = versions->second.begin()->first;
        return oldest > m_schema ? nullptr : current;
    }
    static int EndOf(OldClassFact const& fact) {
        if (std::string(fact.name) == "kmaC_CapCreep") return 452;
        if (std::string(fact.name) == "kmaC_MullinsEffect") return 864;
        return 811;
    }

    int Random(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }
    double Real() { return 1.0 + Random(1000) / 8.0; }
    std::string Uid() {
        std::string bytes(16, '\0');
        ++m_uids;
        std::memcpy(bytes.data(), &m_uids, sizeof m_uids);
        bytes[15] = 3;
        return bytes;
    }

    static Domain const* DomainOf(std::string const& className, std::string const& field) {
        for (std::string const& owner : {className, className.substr(0, className.find('_'))}) {
            auto const known = Domains().find(owner + "." + field);
            if (known != Domains().end()) return &known->second;
        }
        return nullptr;
    }
    int IntIn(Domain const* domain, int below) {
        if (!domain) return Random(below);
        int const low = static_cast<int>(domain->low);
        return low + Random(static_cast<int>(domain->high) - low + 1);
    }
    double RealIn(Domain const* domain) {
        return domain ? domain->low + (domain->high - domain->low) * Random(1001) / 1000 : Real();
    }

    int Array(int columns, int rows) {
        std::vector<double> values;
        for (int i = 0; i < columns * rows; ++i) values.push_back(Real());
        return Array(columns, values);
    }
    int Array(int columns, std::vector<double> const& values) {
        return db.Row(cls_ListTypeId, {{"Target#Handle", OldDatabase::Bytes(values)},
                                       {"Target#Columns", columns},
                                       {"Target#Kind", int(cls_CollectionArray2DDouble)},
                                       {"##Uid", Uid()}});
    }
    int List(int oid) {
        db.Retype(oid, cls_CollectionListDouble);
        return oid;
    }
    int IntList(bool empty) {
        int const values[] = {1, 2 + Random(5)};
        return db.Row(cls_ListTypeId,
                      {{"Target#Handle", std::string(reinterpret_cast<char const*>(values),
                                                     empty ? 0 : sizeof values)},
                       {"Target#Columns", 1},
                       {"Target#Kind", int(cls_CollectionListInt)},
                       {"##Uid", Uid()}});
    }
    int ObjectList(unsigned elementTypeId) {
        std::vector<int> elements;
        if (At(elementTypeId))
            for (int i = 0; i < 2; ++i) elements.push_back(Object(elementTypeId));
        int const first = db.Store().FindTable(rom_Layout::listEntryTypeId)->RowCount();
        int const list = db.Row(cls_ListTypeId, {{"Target#Kind", int(cls_CollectionList)},
                                                 {"#First", first},
                                                 {"#Count", static_cast<int>(elements.size())},
                                                 {"##Uid", Uid()}});
        for (int element : elements)
            db.Row(
                rom_Layout::listEntryTypeId,
                {{"owner", list}, {"value#ClassID", int(elementTypeId)}, {"value#OID", element}});
        return list;
    }
    template <class Key>
    int Map(cls_CollectionType kind, std::vector<std::tuple<Key, unsigned, int>> const& entries) {
        int const first = db.Store().FindTable(rom_Layout::mapEntryTypeId)->RowCount();
        int const map = db.Row(cls_MapTypeId, {{"Target#Kind", int(kind)},
                                               {"#First", first},
                                               {"#Count", static_cast<int>(entries.size())},
                                               {"##Uid", Uid()}});
        for (auto const& [key, typeId, oid] : entries) {
            Value stored;
            if constexpr (std::is_same_v<Key, std::string>)
                stored = key.c_str();
            else
                stored = key;
            db.Row(rom_Layout::mapEntryTypeId, {{"owner", map},
                                                {"key", stored},
                                                {"value#ClassID", int(typeId)},
                                                {"value#OID", oid}});
        }
        return map;
    }

    // Fields whose literals are those of another field now, or of none.
    cow_String const& Literal(cls_ClassMetadata const& metadata, std::string const& field) {
        static std::map<std::string, std::vector<cow_String>> const former = {
            {"mechanism", {"COHESION", "CONSOLIDATION"}},
            {"inputSource", {"CONSTANTS"}},
            {"value", {"RELATIVE"}},
            {"contForceStyle", {"NUMBER", "DERIV_COMP"}},
            {"frcPotOperator", {"SUM", "MAXIMUM"}},
            {"iniPotOperator", {"SUM", "MAXIMUM"}},
            {"evoPotOperator", {"SUM", "MAXIMUM"}},
            {"kbeC_Potential.componentStyle", {"NUMBER", "DERIV_COMP"}},
            {"kbeC_Friction.componentType", {"NO_INDEP_COMPS", "POSITION", "MOTION"}},
            {"kbeC_Damage.evolutionType", {"MOTION", "ENERGY"}},
            {"kamC_Amplitude.definition", {"TABULAR"}},
        };
        static std::map<unsigned, unsigned> const renamed = {
            {0x2A80001, 0x2A80017}, {0x2A80002, 0x2A80018}, {0x2A80006, 0x2A8001C},
            {0x2A8000E, 0x2A8001D}, {0x2A8000F, 0x2A8001E}, {0x2A80016, 0x2A8001F},
            {0x238000A, 0x238007E}};
        static std::map<std::string, std::string> const names = {
            {"units", "variableUnits"}, {"rate", "strainRateRegularization"}, {"time", "timeSpan"}};
        static cow_String const initiation[] = {"INITIATION_SUM", "INITIATION_MAXIMUM"};
        static cow_String const evolution[] = {"EVOLUTION_SUM", "EVOLUTION_MAXIMUM"};
        if (metadata.TypeId() == 0x2A8001E && metadata.Version() == 811) {
            if (field == "initiationPotentialOperator") return initiation[Random(2)];
            if (field == "evolutionPotentialOperator") return evolution[Random(2)];
        }
        for (std::string const& key : {std::string(metadata.Name().Text()) + "." + field, field}) {
            auto const known = former.find(key);
            if (known != former.end())
                return known->second[static_cast<std::size_t>(
                    Random(static_cast<int>(known->second.size())))];
        }
        auto const id = renamed.find(metadata.TypeId());
        mdl_Description const* const description =
            mdl_Description::Find(id == renamed.end() ? metadata.TypeId() : id->second);
        mdl_Field const* now = description ? description->FindField(field.c_str()) : nullptr;
        auto const name = names.find(field);
        if (description && name != names.end() && !(now && now->Type().Rows()))
            now = description->FindField(name->second.c_str());
        if (!now || !now->Type().Rows())
            throw std::logic_error(std::string("no literals of ") + metadata.Name().Text() + "." +
                                   field);
        int count = 0;
        while (now->Type().Rows()[count].literal) ++count;
        m_literals.emplace_back(now->Type().Rows()[Random(count)].literal);
        return m_literals.back();
    }

    void Need(cls_ClassMetadata const& metadata) {
        if (!db.Store().FindTable(metadata.TypeId())) db.Table(rom_Layout::OfClass(metadata));
    }

    static int ListLength(std::string const& field) {
        if (field == "tempThick") return 4;
        return field == "t" ? 2 : 3;
    }

    void Reference(old_test::Fields& fields, std::string const& name, unsigned typeId, int oid) {
        fields.emplace_back(name + "#ClassID", static_cast<int>(typeId));
        fields.emplace_back(name + "#OID", oid);
    }

    /// Whether a field may be without a value. Some references are followed by a step, whatever the
    /// object is.
    bool MayLack(cls_ClassMetadata const& metadata, cls_Attribute const& attribute) {
        static std::set<std::string> const followed = {"kmaC_MaterialTable.table",
                                                       "kmaC_Plastic.table",
                                                       "kmaC_UserMaterial.thermalTable",
                                                       "kmaC_UserMaterial.mechanicalTable",
                                                       "kamC_Periodic.table",
                                                       "kamC_EquallySpaced.table",
                                                       "kamC_Tabular.table",
                                                       "kamC_SmoothStep.table",
                                                       "kbpC_BoxProfile.tempThick",
                                                       "kbpC_ArbitraryProfile.x",
                                                       "kbpC_ArbitraryProfile.y",
                                                       "kbpC_ArbitraryProfile.t",
                                                       "kbeC_PotentialContainer.map"};
        // A program always had a literal.
        if (attribute.type == cls_AttributeEnum) return false;
        std::string const name = attribute.field.Name().Text();
        return followed.count(std::string(metadata.Name().Text()) + "." + name) == 0;
    }

    void Fill(old_test::Fields& fields, cls_ClassMetadata const& metadata,
              cls_Attribute const& attribute) {
        std::string const name = attribute.field.Name().Text();
        if (m_which == Fields::Some && Random(3) == 0 && MayLack(metadata, attribute)) return;
        Domain const* const domain = DomainOf(metadata.Name().Text(), name);
        switch (attribute.type) {
            case cls_AttributeInt:
                fields.emplace_back(name, IntIn(domain, 3));
                return;
            case cls_AttributeBool:
                fields.emplace_back(name, IntIn(domain, 2));
                return;
            case cls_AttributeDouble:
                fields.emplace_back(name, RealIn(domain));
                return;
            case cls_AttributeString:
                fields.emplace_back(name, "a text");
                return;
            case cls_AttributeEnum:
                fields.emplace_back(
                    name, domain ? domain->literal.c_str() : Literal(metadata, name).Text());
                return;
            case cls_AttributeObject:
                break;
        }
        switch (attribute.collection) {
            case cls_CollectionNone:
                if (At(attribute.arg))
                    Reference(fields, name, attribute.arg, Object(attribute.arg, domain));
                return;
            case cls_CollectionArray2DDouble:
                Reference(fields, name, cls_ListTypeId,
                          m_table  ? Array(m_table->columns, m_table->cells)
                          : domain ? Array(domain->columns, domain->cells)
                                   : Array(4, 2));
                return;
            case cls_CollectionListDouble:
                Reference(fields, name, cls_ListTypeId,
                          List(domain ? Array(1, domain->cells) : Array(1, ListLength(name))));
                return;
            case cls_CollectionListInt:
                Reference(fields, name, cls_ListTypeId, IntList(domain != nullptr));
                return;
            case cls_CollectionMapInt: {
                std::vector<std::tuple<int, unsigned, int>> entries;
                for (int key : {3, 7}) entries.emplace_back(key, 0x2A80016, Object(0x2A80016));
                Reference(fields, name, cls_MapTypeId, Map(cls_CollectionMapInt, entries));
                return;
            }
            case cls_CollectionList: {
                mdl_Description const* const now = mdl_Description::Find(metadata.TypeId());
                mdl_Field const* const field = now ? now->FindField(name.c_str()) : nullptr;
                if (field && field->Type().Held() && !field->Type().Held()->IsAbstract())
                    Reference(fields, name, cls_ListTypeId,
                              ObjectList(field->Type().Held()->TypeId()));
                return;
            }
            default:
                return;
        }
    }

    /// \p table: what the table holds that the object is.
    int Object(unsigned typeId, Domain const* table = nullptr) {
        Domain const* const outer = m_table;
        m_table = table;
        int const oid = ObjectIn(typeId);
        m_table = outer;
        return oid;
    }
    int ObjectIn(unsigned typeId) {
        cls_ClassMetadata const& metadata = *At(typeId);
        Need(metadata);
        old_test::Fields fields;
        int const base = metadata.ParentTypeId() > 1 && At(metadata.ParentTypeId())
                             ? Object(metadata.ParentTypeId())
                             : -1;
        fields.emplace_back("##BaseClassOID", base);
        fields.emplace_back("##Uid", Uid());
        if (typeId != 0x2380001)
            for (cls_Attribute const& attribute : metadata.Attributes())
                Fill(fields, metadata, attribute);
        return db.Row(typeId, fields);
    }

    using Entries = std::vector<std::tuple<std::string, unsigned, int>>;

    void Hang(std::string const& repository, unsigned wrapper, Entries const& entries) {
        for (auto const& [name, typeId, oid] : entries) names[repository].push_back(name);
        int const map = Map(cls_CollectionMapString, entries);
        Need(*Current().Find(wrapper));
        old_test::Fields fields;
        Reference(fields, "extension", cls_MapTypeId, map);
        fields.emplace_back("##BaseClassOID", -1);
        fields.emplace_back("##Uid", Uid());
        db.Row(wrapper, fields);
    }

    // A material for each option, which bears the option's name.
    void MakeMaterials() {
        cls_ClassMetadata const& metadata = *At(0x2380001);
        Need(metadata);
        std::map<std::string, int> made;
        for (cls_Attribute const& attribute : metadata.Attributes()) {
            std::string const name = attribute.field.Name().Text();
            if (attribute.type != cls_AttributeObject || !At(attribute.arg)) continue;
            old_test::Fields fields;
            Reference(fields, name, attribute.arg, Object(attribute.arg));
            fields.emplace_back("##BaseClassOID", -1);
            fields.emplace_back("##Uid", Uid());
            made[name] = db.Row(0x2380001, fields);
        }
        // One that has them all, and one that shares them with it.
        old_test::Fields every;
        for (cls_Attribute const& attribute : metadata.Attributes())
            if (attribute.type == cls_AttributeObject && At(attribute.arg))
                Reference(every, attribute.field.Name().Text(), attribute.arg,
                          Object(attribute.arg));
        every.emplace_back("##BaseClassOID", -1);
        for (char const* name : {"all options", "all options again"}) {
            every.emplace_back("##Uid", Uid());
            made[name] = db.Row(0x2380001, every);
            every.pop_back();
        }
        Hang("materials", 0x238007D, InOrder(made, [](auto const&) { return 0x2380001u; }));
    }

    /// Maps keep their names in natural order, which for these is that of the texts.
    template <class TypeOf>
    static Entries InOrder(std::map<std::string, int> const& made, TypeOf typeOf) {
        std::map<std::string, int, bool (*)(std::string const&, std::string const&)> sorted(
            [](std::string const& a, std::string const& b) {
                return strnatcmp(a.c_str(), b.c_str()) < 0;
            });
        sorted.insert(made.begin(), made.end());
        Entries entries;
        for (auto const& [name, oid] : sorted) entries.emplace_back(name, typeOf(name), oid);
        return entries;
    }

    // An object of each class under a base, which bears the class's name.
    void MakeRepository(std::string const& repository, unsigned wrapper, unsigned base) {
        std::map<std::string, int> made;
        std::map<std::string, unsigned> classes;
        if (!At(base)) return;
        for (cls_ClassMetadata const* current : Current().Classes()) {
            if (current->ParentTypeId() != base || !At(current->TypeId())) continue;
            made[current->Name().Text()] = Object(current->TypeId());
            classes[current->Name().Text()] = current->TypeId();
        }
        Hang(repository, wrapper,
             InOrder(made, [&](std::string const& name) { return classes.at(name); }));
    }

    void MakeConnectors() {
        if (m_schema < 453) return;
        std::vector<std::pair<unsigned, int>> inSection;
        for (unsigned typeId :
             {0x2A80001u, 0x2A80002u, 0x2A80003u, 0x2A80004u, 0x2A80005u, 0x2A80006u, 0x2A8000Eu,
              0x2A8000Fu, 0x2A80017u, 0x2A80018u, 0x2A80019u, 0x2A8001Au, 0x2A8001Bu, 0x2A8001Cu,
              0x2A8001Du, 0x2A8001Eu}) {
            if (!At(typeId)) continue;
            inSection.emplace_back(typeId, Object(typeId));
            Object(typeId);
            connectors += 2;
        }
        // Sections are the host's, as is what holds load cases.
        if (!Current().Find(0x3840002)) return;
        int const first = db.Store().FindTable(rom_Layout::listEntryTypeId)->RowCount();
        int const list = db.Row(cls_ListTypeId, {{"Target#Kind", int(cls_CollectionList)},
                                                 {"#First", first},
                                                 {"#Count", static_cast<int>(inSection.size())},
                                                 {"##Uid", Uid()}});
        for (auto const& [typeId, oid] : inSection)
            db.Row(rom_Layout::listEntryTypeId,
                   {{"owner", list}, {"value#ClassID", int(typeId)}, {"value#OID", oid}});
        Need(*Current().Find(0x3840002));
        old_test::Fields fields;
        Reference(fields, "options", cls_ListTypeId, list);
        fields.emplace_back("##BaseClassOID", -1);
        fields.emplace_back("##Uid", Uid());
        Hang("sections", 0x3840004, {{"a section", 0x3840002, db.Row(0x3840002, fields)}});
        if (m_schema < currentSchema) names["sections"].emplace_back("recovered behaviors");
    }

    // Two of three have a name; the third is in no map.
    void MakeLoadCases() {
        if (m_schema < 302 || !Current().Find(0x3840001)) return;
        Need(*Current().Find(0x2DC0001));
        int rows[3];
        for (int& row : rows)
            row = db.Row(0x2DC0001, {{"includeActiveBaseStateBC", Random(2)},
                                     {"##BaseClassOID", -1},
                                     {"##Uid", Uid()}});
        Entries const entries = {{"snow", 0x2DC0001, rows[2]}, {"wind", 0x2DC0001, rows[0]}};
        Need(*Current().Find(0x3840001));
        old_test::Fields fields;
        Reference(fields, "loadCases", cls_MapTypeId, Map(cls_CollectionMapString, entries));
        fields.emplace_back("##BaseClassOID", -1);
        fields.emplace_back("##Uid", Uid());
        db.Row(0x3840001, fields);
        names["loadCases"] = {"snow", "wind"};
        // A file of today is not upgraded.
        if (m_schema < currentSchema)
            names["loadCases"].insert(names["loadCases"].begin(), "recovered load case 1");
    }

    /// The schema of today.
    static constexpr int currentSchema = 1111;

    int m_schema;
    std::mt19937 m_random;
    Fields m_which;
    Domain const* m_table = nullptr;
    int m_uids = 0;
    std::vector<std::unique_ptr<cls_ClassRegistrar>> m_owned;
    std::map<unsigned, std::map<int, cls_ClassMetadata const*>> m_old;
    std::deque<cow_String> m_literals;
};

}  // namespace old_test
