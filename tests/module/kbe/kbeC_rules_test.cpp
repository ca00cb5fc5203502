#include <set>

#include "kbeC_UnderTest.h"

// The rules of every class, alone, in pairs, and what no rule looks at, from the table beside this.

namespace kbeC_rules_test {

using kbeC_test::Object;
using kbeC_test::passes;
using kbeC_test::Split;
using kbeC_test::TextOfVerdict;

struct Line {
    std::string className;
    std::string settings;
    std::string steps;
};

std::vector<Line> const lines = {
#define RULES(C, settings, steps) {#C, settings, steps},
#include "kbeC_rules.inc"
#undef RULES
};

// One way to make one step of a line fail.
struct Break {
    std::string verdict;
    std::string settings;
};

std::vector<std::vector<Break>> BreaksOf(Line const& line) {
    std::vector<std::vector<Break>> steps;
    for (std::string const& step : Split(line.steps, ' ')) {
        steps.emplace_back();
        for (std::string const& one : Split(step, '|')) {
            std::size_t const colon = one.find(':');
            std::string settings = one.substr(colon + 1);
            for (char& c : settings)
                if (c == '&') c = ' ';
            steps.back().push_back({one.substr(0, colon), settings});
        }
    }
    return steps;
}

std::string Describe(Line const& line) { return line.className + " {" + line.settings + "}"; }

class ConnectorRules : public kbeC_test::ConnectorTest {};

TEST_F(ConnectorRules, AreListedForEveryClassThatHasSome) {
    std::set<std::string> listed;
    for (Line const& line : lines) listed.insert(line.className);
    std::set<std::string> registered;
    for (cls_ClassMetadata const* metadata :
         omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase).Classes()) {
        if (metadata->TypeId() >> 16 != kbeC_component) continue;
        mdl_Description const* description = mdl_Description::Find(metadata->TypeId());
        if (description && !description->IsAbstract()) registered.insert(metadata->Name().Text());
    }
    EXPECT_EQ(registered.erase("kbeC_ContactForce"), 1u);
    EXPECT_EQ(listed, registered);
}

TEST_F(ConnectorRules, HoldAsSetUp) {
    for (Line const& line : lines) {
        Object const object(line.className, line.settings);
        EXPECT_EQ(object.Verdict(), passes) << Describe(line);
        EXPECT_TRUE(object.AllFailures().empty()) << Describe(line);
    }
}

TEST_F(ConnectorRules, EachFailsAloneWithItsText) {
    int tried = 0;
    for (Line const& line : lines) {
        for (std::vector<Break> const& ways : BreaksOf(line)) {
            for (Break const& way : ways) {
                Object const object(line.className, line.settings + " " + way.settings);
                EXPECT_EQ(object.Verdict(), TextOfVerdict(way.verdict))
                    << Describe(line) << ' ' << way.settings;
                EXPECT_FALSE(object.AllFailures().empty());
                ++tried;
            }
        }
    }
    EXPECT_GT(tried, 250);
}

TEST_F(ConnectorRules, TheFirstOfAnyTwoFailuresWins) {
    int told = 0;
    for (Line const& line : lines) {
        std::vector<std::vector<Break>> const steps = BreaksOf(line);
        for (std::size_t first = 0; first < steps.size(); ++first)
            for (std::size_t second = first + 1; second < steps.size(); ++second)
                for (Break const& winner : steps[first])
                    for (Break const& loser : steps[second]) {
                        if (winner.verdict == loser.verdict) continue;
                        // The winner is set last, so that the loser cannot undo it.
                        Object const object(line.className, line.settings + " " + loser.settings +
                                                                " " + winner.settings);
                        EXPECT_EQ(object.Verdict(), TextOfVerdict(winner.verdict))
                            << Describe(line) << ' ' << winner.settings << " before "
                            << loser.settings;
                        ++told;
                    }
    }
    EXPECT_GT(told, 800);
}

TEST_F(ConnectorRules, WhatALineDoesNotNameIsNotChecked) {
    int ignored = 0;
    for (Line const& line : lines) {
        Object object(line.className, line.settings);
        std::string const named = " " + line.settings + " " + line.steps + " ";
        auto const isNamed = [&](std::string const& name) {
            for (char before : {' ', '|', '&', ':'})
                for (char after : {'=', '[', '.'})
                    if (named.find(before + name + after) != std::string::npos) return true;
            return false;
        };
        for (mdl_Field const& field : object.Description().Fields()) {
            std::string const name = field.Name();
            if (isNamed(name)) continue;
            switch (field.Type().Kind()) {
                case mdl_FieldKind::Int:
                    object.Set(name + "=min");
                    break;
                case mdl_FieldKind::Double:
                    object.Set(name + "=nan");
                    break;
                case mdl_FieldKind::Object:
                    object.Set(name + "=0,0,0,0,0,0,0,0,0");
                    break;
                case mdl_FieldKind::IntList:
                    object.Set(name + "=99,99,0");
                    break;
                case mdl_FieldKind::ObjectList:
                    object.Set(name + "=+");
                    break;
                case mdl_FieldKind::Option:
                    if (std::string(field.Type().Held()->Name()) == "kbeC_ConnectorOptions")
                        object.Set(name + ".rateFactor=0.5");
                    else if (name == "derivedComponent")
                        object.Set(name + ".cdcTerms=+");
                    else
                        object.Set(name + "=new");
                    break;
                default:
                    continue;
            }
            ++ignored;
        }
        EXPECT_EQ(object.Verdict(), passes) << Describe(line);
    }
    EXPECT_GT(ignored, 100);
}

// A visitor that does not raise meets every rule, whatever failed before.
TEST_F(ConnectorRules, GoOnBehindAnyFailure) {
    for (Line const& line : lines) {
        std::vector<std::vector<Break>> const steps = BreaksOf(line);
        for (std::size_t from = 0; from < steps.size(); ++from) {
            // From the last, so that no cell is set in a table that an earlier step made narrow.
            Object object(line.className, line.settings);
            for (std::size_t i = steps.size(); i-- > from;)
                for (Break const& way : steps[i]) object.Set(way.settings);
            object.AllFailures();
        }
    }
    Object const stop("kbeC_ConnectorStop", "components=7 minMotion=3 maxMotion=1");
    EXPECT_EQ(stop.AllFailures(),
              (std::vector<std::string>{TextOfVerdict("4"), TextOfVerdict("14")}));
    Object const damping("kbeC_ConnectorDamping", "options.rateFactor=0.5 dependencies=-1");
    EXPECT_EQ(damping.AllFailures(),
              (std::vector<std::string>{TextOfVerdict("3"), TextOfVerdict("0"), TextOfVerdict("11"),
                                        "content 1 Damping"}));
}

// A visitor that knows one table of codes meets a refusal that names something as a failure too.
TEST_F(ConnectorRules, ARefusalThatNamesSomethingIsAFailureToEveryVisitor) {
    class Codes final : public mdl_RuleVisitor {
    public:
        std::vector<int> codes;

    protected:
        void Failed(int code) override { codes.push_back(code); }
        void Object(void const*, int, void const*, mdl_Asked) override {}
    };
    Codes visitor;
    Object const term("kbeC_CDCTerm", "options.rateFactor=0.5");
    term.As<kbeC_CDCTerm>().Rules(visitor);
    EXPECT_EQ(visitor.codes, (std::vector<int>{51, 1}));
}

}  // namespace kbeC_rules_test
