#include "mdl_Describe.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "nex_Exception.h"
#include "omu_ValueErrorException.h"
#include "support/FieldMutator.h"
#include "support/RecordingWriteAgent.h"
#include "support/Specimen.h"
#include "support/StoredObject.h"

NGA_DEFINE_SPECIMENS

namespace mdl_Describe_test {

using nga_test::StoredObject;
using nga_test::WriteLog;

specimen_Whole Read(StoredObject& stored) {
    cls_ReadVisitor const visitor(stored.Memento());
    return specimen_Whole(visitor);
}

/// A record of a specimen with a literal, which every enumerated field needs.
void SetLiteral(StoredObject& stored) { stored.texts["colour"] = "RED"; }

char const* const defaultRecord =
    "start 0x7770003\n"
    "base 0x7770002 {\n"
    "  start 0x7770002\n"
    "  int 0:level=1\n"
    "}\n"
    "int 0:count=3\n"
    "double 1:real=0.25\n"
    "text 2:text=none\n"
    "bool 3:flag=true\n"
    "text 4:colour=GREEN\n"
    "field 5:part {\n"
    "  start 0x7770001\n"
    "  int 0:number=4\n"
    "}\n"
    "null 6:option\n"
    "field 7:options {\n"
    "  start 0x230001\n"
    "  check 1\n"
    "  list 1\n"
    "  must delete\n"
    "  writer deleted\n"
    "}\n"
    "field 8:parts {\n"
    "  start 0x230001\n"
    "  check 1\n"
    "  list 1\n"
    "  must delete\n"
    "  writer deleted\n"
    "}\n"
    "field 9:ints {\n"
    "  start 0x230001\n"
    "  check 54\n"
    "  ints\n"
    "}\n"
    "field 10:reals {\n"
    "  start 0x230001\n"
    "  check 52\n"
    "  doubles\n"
    "}\n"
    "field 11:factors {\n"
    "  start 0x230002\n"
    "  check 63\n"
    "  floats\n"
    "}\n"
    "field 12:cells {\n"
    "  start 0x230001\n"
    "  check 82\n"
    "  array 0x0\n"
    "}\n";

TEST(Described, WritesItsBaseThenItsFieldsInTheOrderOfTheSchema) {
    WriteLog log;
    EXPECT_EQ(log.Write(specimen_Whole()), defaultRecord);
    EXPECT_EQ(log.liveAgents, 0);
    EXPECT_EQ(log.liveWriters, 0);
}

TEST(Described, ASecondWriteOfOneIdentityStopsAfterTheStart) {
    WriteLog log;
    specimen_Whole const whole;
    log.Write(whole);
    EXPECT_EQ(log.Write(whole), "start 0x7770003 again\n");
}

TEST(Described, ACopyIsTheSameRecordUntilItTakesANewIdentity) {
    WriteLog log;
    specimen_Part const part;
    std::unique_ptr<specimen_Part> const copy(part.Copy());
    EXPECT_EQ(copy->uid, part.uid);
    log.Write(part);
    EXPECT_EQ(log.Write(*copy), "start 0x7770001 again\n");
    copy->uid.NewUid();
    EXPECT_EQ(log.Write(*copy), "start 0x7770001\nint 0:number=4\n");
}

TEST(Described, PassesTheHandleOfAnOptionAndNullForWhatIsHeldByValue) {
    specimen_Whole whole;
    whole.option = new specimen_Part;
    WriteLog log;
    log.Write(whole);
    ASSERT_EQ(log.handles.size(), 8u);
    EXPECT_EQ(log.handles[0], nullptr);  // part
    EXPECT_EQ(log.handles[1], static_cast<cow_HandleBase const*>(&whole.option));
    for (std::size_t i = 2; i < log.handles.size(); ++i) EXPECT_EQ(log.handles[i], nullptr) << i;
}

TEST(Described, WritesTheElementsOfItsListsInOrderAndNullsForAbsentOnes) {
    specimen_Whole whole;
    auto* element = new specimen_Whole;
    element->count = 11;
    whole.options.Append(specimen_BaseHandle(element));
    whole.options.Append(specimen_BaseHandle());
    whole.parts.Append(specimen_Part());
    whole.parts.Append(whole.parts.ConstGet(0));
    WriteLog log;
    std::string const lines = log.Write(whole);
    std::string const options =
        "field 7:options {\n"
        "  start 0x230001\n"
        "  check 1\n"
        "  list 1\n"
        "  element {\n"
        "    start 0x7770003\n"
        "    base 0x7770002 {\n";
    std::string const rest =
        "  }\n"
        "  null element 0x7770002\n"
        "  must delete\n"
        "  writer deleted\n"
        "}\n"
        "field 8:parts {\n"
        "  start 0x230001\n"
        "  check 1\n"
        "  list 1\n"
        "  element {\n"
        "    start 0x7770001\n"
        "    int 0:number=4\n"
        "  }\n"
        "  element {\n"
        "    start 0x7770001 again\n"
        "  }\n"
        "  must delete\n"
        "  writer deleted\n"
        "}\n";
    EXPECT_NE(lines.find(options), std::string::npos) << lines;
    EXPECT_NE(lines.find("    int 0:count=11\n"), std::string::npos) << lines;
    EXPECT_NE(lines.find(rest), std::string::npos) << lines;
    EXPECT_EQ(log.liveAgents, 0);
}

TEST(Described, AWriterThatKeepsItselfIsNotDeleted) {
    specimen_Whole const whole;
    WriteLog log;
    log.callerDeletes = false;
    log.Write(whole);
    EXPECT_EQ(log.liveWriters, 2);
    EXPECT_EQ(log.lines.find("writer deleted"), std::string::npos);
    for (cls_WriteListObj* writer : log.keptLists) delete writer;
}

TEST(Described, AListThatWasWrittenBeforeWritesItsElementsAllTheSame) {
    specimen_BaseList list;
    list.Append(specimen_BaseHandle());
    WriteLog log;
    log.Write(list);
    EXPECT_EQ(log.Write(list),
              "start 0x230001 again\n"
              "check 1\n"
              "list 1\n"
              "null element 0x7770002\n"
              "must delete\n"
              "writer deleted\n");
}

TEST(Described, ANumberOutsideTheTableRaisesWhenWritten) {
    specimen_Whole whole;
    whole.colour = specimen_Whole::ColourEnm(9);
    WriteLog log;
    try {
        log.Write(whole);
        FAIL();
    } catch (omu_ValueErrorException const& failure) {
        EXPECT_STREQ(failure.AsString().Text(),
                     "omu_PrimEnum(Enum) - Enum value not allowed: 9  Permissible: RED, GREEN, "
                     "DARK_BLUE");
        EXPECT_EQ(failure.Line(), 54);
    }
    EXPECT_EQ(log.liveAgents, 0);
}

TEST(Described, ReadsItsBaseFromTheSameRecordThenItsFieldsThenItsIdentity) {
    StoredObject stored;
    SetLiteral(stored);
    specimen_Whole const whole = Read(stored);
    EXPECT_EQ(stored.lines,
              "int 0:level or 0\n"
              "uid\n"
              "int 0:count or 0\n"
              "double 1:real or 0\n"
              "text 2:text or ''\n"
              "bool 3:flag or false\n"
              "literal 4:colour\n"
              "field 5:part\n"
              "object 6:option 0x7770001\n"
              "field 7:options\n"
              "field 8:parts\n"
              "field 9:ints\n"
              "field 10:reals\n"
              "field 11:factors\n"
              "field 12:cells\n"
              "uid\n");
    EXPECT_EQ(whole.uid, stored.uid);
    EXPECT_EQ(whole.part.uid, stored.Field("part").uid);
    EXPECT_EQ(whole.cells.uid, stored.Field("cells").uid);
    EXPECT_EQ(whole.options.list.uid, stored.Field("options").uid);
    EXPECT_EQ(stored.liveMementos, 0);
    for (auto const& [name, field] : stored.fields) EXPECT_EQ(field->liveMementos, 0) << name;
}

TEST(Described, AMissingValueIsThatOfNoValueAndNotOfTheClass) {
    StoredObject stored;
    SetLiteral(stored);
    specimen_Whole const whole = Read(stored);
    EXPECT_EQ(whole.level, 0);
    EXPECT_EQ(whole.count, 0);
    EXPECT_EQ(whole.real, 0.0);
    EXPECT_STREQ(whole.text.Text(), "");
    EXPECT_FALSE(whole.flag);
    EXPECT_EQ(whole.colour, specimen_Whole::ColourEnm::RED);
    EXPECT_EQ(whole.part.number, 0);
    EXPECT_EQ(whole.option.GetPtr(), nullptr);
    EXPECT_EQ(whole.options.Size(), 0);
    EXPECT_EQ(whole.cells.Rows(), 0);
}

TEST(Described, AMissingOrUnknownLiteralIsRefused) {
    for (char const* literal : {"", "red", "PURPLE", "REDD", "RE"}) {
        StoredObject stored;
        if (*literal) stored.texts["colour"] = literal;
        try {
            Read(stored);
            FAIL() << literal;
        } catch (omu_ValueErrorException const& failure) {
            EXPECT_EQ(std::string(failure.AsString().Text()),
                      std::string("omu_PrimEnum(const cow_String&) - str not allowed: ") + literal +
                          "  Permissible: RED, GREEN, DARK_BLUE");
            EXPECT_EQ(failure.Line(), 81);
        }
        EXPECT_EQ(stored.liveMementos, 0);
    }
}

TEST(Described, SharesTheObjectsThatTheReaderKeeps) {
    StoredObject stored;
    SetLiteral(stored);
    auto* part = new specimen_Part;
    stored.Refer("option", part);
    auto* element = new specimen_Whole;
    stored.Field("options").elements = {{"", 0, StoredObject::Erased<specimen_Base>(element), {}},
                                        {}};
    auto byValue = std::make_shared<StoredObject>();
    byValue->ints["number"] = 12;
    stored.Field("parts").elements = {{"", 0, {}, byValue}, {"", 0, {}, byValue}};
    specimen_Whole const whole = Read(stored);
    EXPECT_EQ(whole.option.GetPtr(), part);
    EXPECT_EQ(whole.option.Count(), 2);
    ASSERT_EQ(whole.options.Size(), 2);
    EXPECT_EQ(whole.options.ConstGet(0).GetPtr(), element);
    EXPECT_EQ(whole.options.ConstGet(0).Count(), 2);
    EXPECT_EQ(whole.options.ConstGet(1).GetPtr(), nullptr);
    ASSERT_EQ(whole.parts.Size(), 2);
    EXPECT_EQ(whole.parts.ConstGet(1).number, 12);
    EXPECT_EQ(whole.parts.ConstGet(1).uid, byValue->uid);
    EXPECT_EQ(stored.Field("options").lines,
              "uid\nelement 0x7770002\nelement 0x7770002\nreader deleted\n");
    EXPECT_EQ(stored.Field("parts").lines,
              "uid\nelement by value\nelement by value\nreader deleted\n");
    EXPECT_EQ(byValue->liveMementos, 0);
}

TEST(Described, RegistersItsAttributes) {
    cls_ClassRegistrar registrar;
    specimen_Base::InitializeMetadata(registrar);
    specimen_Whole::InitializeMetadata(registrar);
    specimen_Part::InitializeMetadata(registrar);
    cls_ClassMetadata const* metadata = registrar.Find(specimen_Whole::TypeId());
    ASSERT_NE(metadata, nullptr);
    EXPECT_STREQ(metadata->Name().Text(), "specimen_Whole");
    EXPECT_EQ(metadata->Version(), 205);
    EXPECT_EQ(metadata->ParentTypeId(), specimen_Base::TypeId());
    EXPECT_TRUE(metadata->HasCtor());
    EXPECT_FALSE(registrar.Find(specimen_Base::TypeId())->HasCtor());
    EXPECT_EQ(registrar.Find(specimen_Base::TypeId())->ParentTypeId(), 1u);
    struct {
        char const* name;
        int code;
        unsigned arg;
        int collection;
    } const expected[] = {
        {"count", 5, 1, 0},           {"real", 10, 1, 0},           {"text", 11, 1, 0},
        {"flag", 13, 1, 0},           {"colour", 14, 1, 0},         {"part", 15, 0x7770001, 0},
        {"option", 15, 0x7770001, 0}, {"options", 15, 0x230001, 1}, {"parts", 15, 0x230001, 1},
        {"ints", 15, 0x230001, 54},   {"reals", 15, 0x230001, 52},  {"factors", 15, 0x230002, 63},
        {"cells", 15, 0x230001, 82},
    };
    ASSERT_EQ(metadata->Attributes().size(), std::size(expected));
    for (int i = 0; i < static_cast<int>(std::size(expected)); ++i) {
        cls_Attribute const& attribute = metadata->Attributes()[static_cast<std::size_t>(i)];
        EXPECT_STREQ(attribute.field.Name().Text(), expected[i].name);
        EXPECT_EQ(attribute.field.Index(), i);
        EXPECT_EQ(attribute.type, expected[i].code) << expected[i].name;
        EXPECT_EQ(attribute.arg, expected[i].arg) << expected[i].name;
        EXPECT_EQ(attribute.collection, expected[i].collection) << expected[i].name;
    }
}

TEST(Described, TheReleaseFunctionEndsAHandleAndAllowsNull) {
    cls_ClassRegistrar registrar;
    specimen_Part::InitializeMetadata(registrar);
    cls_ClassMetadata const* metadata = registrar.Find(specimen_Part::TypeId());
    metadata->DeleteCow(nullptr);
    metadata->DeleteObject(nullptr);
    cow_CountedHld<specimen_Part> shared(new specimen_Part);
    auto* handle = new (mem_Malloc(sizeof(cow_CountedHld<specimen_Part>)))
        cow_CountedHld<specimen_Part>(shared);
    EXPECT_EQ(shared.Count(), 2);
    metadata->DeleteCow(handle);
    EXPECT_EQ(shared.Count(), 1);
    metadata->DeleteObject(new specimen_Part);
}

TEST(Described, ScriptNamesAreTheSchemaNamesUnlessTheLineSaysOtherwise) {
    EXPECT_STREQ(specimen_Whole::countCmd().Text(), "count");
    EXPECT_STREQ(specimen_Whole::textCmd().Text(), "label");
    EXPECT_STREQ(specimen_Whole::constructorCmd().Text(), "Whole");
    EXPECT_STREQ(specimen_Whole::setValuesCmd().Text(), "setValues");
    mdl_Description const& description = specimen_Whole::Description();
    EXPECT_EQ(description.FindScript("label"), description.FindField("text"));
    EXPECT_EQ(description.FindField("label"), nullptr);
    EXPECT_STREQ(description.FindField("level")->Name(), "level");
    EXPECT_EQ(description.AllFields().size(), 14u);
}

/// What each rule asks, in order; failures are noted and passed over.
class NotingVisitor final : public mdl_RuleVisitor {
public:
    std::string lines;

protected:
    void Failed(int code) override { lines += "fails " + std::to_string(code) + "\n"; }
    void Object(void const*, int index, void const* object, mdl_Asked how) override {
        lines +=
            "asks " + nga_test::Hex(how.dynTypeId(object)) + " at " + std::to_string(index) + "\n";
    }
};

TEST(Described, ItsRulesAreOneFunctionOverAnyVisitor) {
    specimen_Whole whole;
    whole.options.Append(specimen_BaseHandle());
    whole.options.Append(specimen_BaseHandle(new specimen_Whole));
    whole.parts.Append(specimen_Part());
    whole.real = -1.0;
    NotingVisitor all;
    whole.Rules(all);
    EXPECT_EQ(all.lines,
              "asks 0x7770001 at 0\n"
              "asks 0x7770003 at 1\n"
              "asks 0x7770001 at 0\n"
              "fails 2\n");
    whole.count = -1;
    NotingVisitor first;
    specimen_Whole::Description().RunRules(&whole, first);
    EXPECT_EQ(first.lines, "fails 1\n");
    EXPECT_THROW(whole.AssertValid(), int);
}

TEST(Described, TheFirstFailureRaisesThroughTheModule) {
    specimen_Whole whole;
    EXPECT_NO_THROW(whole.AssertValid());
    whole.real = -1.0;
    auto* part = new specimen_Part;
    whole.option = part;
    try {
        whole.AssertValid();
        FAIL();
    } catch (int code) {
        EXPECT_EQ(code, 2);
    }
    part->number = -1;
    try {
        whole.AssertValid();
        FAIL();
    } catch (int code) {
        EXPECT_EQ(code, 7);
    }
}

TEST(Described, EveryTypeOfFieldTakesPartInSame) {
    mdl_Description const& description = specimen_Whole::Description();
    cls_ClassRegistrar registrar;
    specimen_Whole::InitializeMetadata(registrar);
    specimen_Part::InitializeMetadata(registrar);
    int changed = 0;
    for (mdl_Field const* field : description.AllFields()) {
        specimen_Whole const before;
        specimen_Whole after(before);
        EXPECT_TRUE(description.Same(&before, &after)) << field->Name();
        if (field->Type().Kind() == mdl_FieldKind::OptionList)
            after.options.Append(specimen_BaseHandle());
        else if (!nga_test::MutateField(*field, &after))
            continue;
        ++changed;
        EXPECT_FALSE(description.Same(&before, &after)) << field->Name();
        specimen_Whole const again(after);
        EXPECT_TRUE(description.Same(&again, &after)) << field->Name();
    }
    EXPECT_EQ(changed, 14);
}

TEST(Described, SameTellsBitsApartAndAcceptsANaN) {
    mdl_Description const& description = specimen_Whole::Description();
    specimen_Whole a;
    specimen_Whole b;
    a.real = 0.0;
    b.real = -0.0;
    EXPECT_FALSE(description.Same(&a, &b));
    a.real = b.real = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(description.Same(&a, &b));
    a.uid.NewUid();
    EXPECT_TRUE(description.Same(&a, &b));
}

TEST(Described, AdoptAndClearOwnWhatTheyAreGiven) {
    specimen_Whole whole;
    mdl_Description const& description = specimen_Whole::Description();
    for (char const* name : {"option", "parts"}) {
        mdl_Field const* field = description.FindField(name);
        field->Type().Adopt(field->At(&whole), new specimen_Part);
        ASSERT_EQ(field->Type().Count(field->At(&whole)), 1) << name;
        EXPECT_NE(field->Type().ConstObject(field->At(&whole), 0), nullptr) << name;
        field->Type().Clear(field->At(&whole));
        EXPECT_FALSE(field->Type().Count(field->At(&whole)) == 1 &&
                     field->Type().ConstObject(field->At(&whole), 0) != nullptr)
            << name;
    }
    mdl_Field const* list = description.FindField("options");
    list->Type().Adopt(list->At(&whole), nullptr);
    EXPECT_EQ(whole.options.Size(), 1);
    EXPECT_EQ(list->Type().ConstObject(list->At(&whole), 0), nullptr);
    EXPECT_EQ(list->Type().MutableObject(list->At(&whole), 0), nullptr);
}

TEST(Described, MutableObjectDetachesOneOwnerOnly) {
    specimen_Whole whole;
    whole.option = new specimen_Part;
    specimen_Whole copy(whole);
    mdl_Field const* field = specimen_Whole::Description().FindField("option");
    auto* part = static_cast<specimen_Part*>(field->Type().MutableObject(field->At(&copy), 0));
    part->number = 99;
    EXPECT_EQ(whole.option.ConstGet().number, 4);
    EXPECT_EQ(copy.option.ConstGet().number, 99);
}

}  // namespace mdl_Describe_test
