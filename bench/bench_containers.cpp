// The containers against those of the standard library. Names are of the length that models use;
// trees and maps are filled and asked in random orders, by key objects of their own.

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <deque>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "cow_ArrayCOW.h"
#include "cow_Btree.h"
#include "cow_BtreeIterator.h"
#include "cow_List.h"
#include "mem_AllocationOperators.h"
#include "ratio.h"

namespace {

struct Object : mem_AllocationOperators {
    explicit Object(int n) : number(n) {}
    int number;
    double weight = 0;
};
using Handle = cow_ArrayCOW<Object, cow_Direct<Object>>;
using Tree = cow_Btree<cow_String, Handle>;
using Map = std::map<std::string, std::shared_ptr<Object>>;

std::vector<std::string> MakeNames(int n, unsigned seed, char const* format = "Material-%06d") {
    std::vector<std::string> names;
    for (int i = 0; i < n; ++i) {
        char text[64];
        std::snprintf(text, sizeof text, format, i);
        names.emplace_back(text);
    }
    std::shuffle(names.begin(), names.end(), std::mt19937(seed));
    return names;
}

std::vector<cow_String> AsKeys(std::vector<std::string> const& names) {
    std::vector<cow_String> keys;
    for (std::string const& name : names) keys.emplace_back(name.c_str());
    return keys;
}

// One population of names with everything that both sides need.
struct Population {
    explicit Population(int n, char const* format = "Material-%06d")
        : size(n), names(MakeNames(n, 1, format)), askedNames(MakeNames(n, 2, format)) {
        askedNames.resize(static_cast<std::size_t>(std::min(n, 20000)));
        askedKeys = AsKeys(askedNames);
        for (std::string const& name : names) {
            cow_String const key(name.c_str());
            Handle const object(new Object(0));
            keys.push_back(key);
            objects.push_back(object);
            tree.InsertUnlessMember(key, object);
        }
        for (std::string const& name : names) {
            shared.push_back(std::make_shared<Object>(0));
            map.emplace(name, shared.back());
        }
    }

    int size;
    std::vector<std::string> names, askedNames;
    std::vector<cow_String> keys, askedKeys;
    std::vector<Handle> objects;
    std::vector<std::shared_ptr<Object>> shared;
    Tree tree;
    Map map;
};

double LookUpTree(Population const& p) {
    return ratio::Seconds([&p] {
        for (cow_String const& key : p.askedKeys) ratio::Keep(p.tree.ConstFind(key));
    });
}
double LookUpMap(Population const& p) {
    return ratio::Seconds([&p] {
        for (std::string const& name : p.askedNames) ratio::Keep(p.map.find(name));
    });
}

double CopyTree(Population const& p, int times) {
    return ratio::Seconds([&] {
        for (int i = 0; i < times; ++i) {
            Tree const copy(p.tree);
            ratio::Keep(&copy);
        }
    });
}

double BuildTree(Population const& p) {
    Tree tree;
    return ratio::Seconds([&] {
        for (std::size_t i = 0; i < p.keys.size(); ++i) {
            tree.InsertUnlessMember(p.keys[i], p.objects[i]);
        }
    });
}
double BuildMap(Population const& p) {
    Map map;
    return ratio::Seconds([&] {
        for (std::size_t i = 0; i < p.names.size(); ++i) map.emplace(p.names[i], p.shared[i]);
    });
}

double DestroyTree(Population const& p) {
    auto tree = std::make_unique<Tree>();
    for (std::size_t i = 0; i < p.keys.size(); ++i) {
        tree->InsertUnlessMember(p.keys[i], p.objects[i]);
    }
    return ratio::Seconds([&] { tree.reset(); });
}
double DestroyMap(Population const& p) {
    auto map = std::make_unique<Map>();
    for (std::size_t i = 0; i < p.names.size(); ++i) map->emplace(p.names[i], p.shared[i]);
    return ratio::Seconds([&] { map.reset(); });
}

double WalkTree(Population const& p) {
    return ratio::Seconds([&] {
        long sum = 0;
        cow_BtreeIterator<cow_String, Handle> walk(p.tree);
        for (bool more = walk.First(); more; more = walk.Next()) {
            sum += walk.CurrentKey().Length() + (walk.CurrentValue().IsNull() ? 1 : 0);
        }
        ratio::Keep(sum);
    });
}
double WalkMap(Population const& p) {
    return ratio::Seconds([&] {
        long sum = 0;
        for (auto const& entry : p.map) {
            sum += static_cast<long>(entry.first.size()) + (entry.second ? 0 : 1);
        }
        ratio::Keep(sum);
    });
}

// A thousand names that are not there go in, and out again outside the measurement.
double InsertIntoTree(Population& p, std::vector<cow_String> const& fresh) {
    double const seconds = ratio::Seconds([&] {
        for (cow_String const& key : fresh) p.tree.InsertUnlessMember(key, p.objects[0]);
    });
    for (cow_String const& key : fresh) p.tree.Remove(key);
    return seconds;
}
double InsertIntoMap(Population& p, std::vector<std::string> const& fresh) {
    double const seconds = ratio::Seconds([&] {
        for (std::string const& name : fresh) p.map.emplace(name, p.shared[0]);
    });
    for (std::string const& name : fresh) p.map.erase(name);
    return seconds;
}

// Copies of the tree are kept until the measurement is over; each is written once.
double CopyAndChange(Population const& p, std::size_t times, std::size_t& at) {
    std::vector<Tree> copies(times);
    double const seconds = ratio::Seconds([&] {
        for (Tree& copy : copies) {
            copy = p.tree;
            copy.Find(p.askedKeys[at])->Value().Get().weight = 1;
            at = (at + 1) % p.askedKeys.size();
        }
    });
    return seconds;
}
// The same with the copy's end inside the measurement.
double CopyChangeAndDrop(Population const& p, std::size_t times, std::size_t& at) {
    return ratio::Seconds([&] {
        for (std::size_t i = 0; i < times; ++i) {
            Tree copy(p.tree);
            copy.Find(p.askedKeys[at])->Value().Get().weight = 1;
            at = (at + 1) % p.askedKeys.size();
        }
    });
}
double LookUpSome(Population const& p, std::size_t times, std::size_t& at) {
    return ratio::Seconds([&] {
        for (std::size_t i = 0; i < times; ++i) {
            ratio::Keep(p.map.find(p.askedNames[at]));
            at = (at + 1) % p.askedNames.size();
        }
    });
}

void Trees(ratio::Table& table) {
    Population thousand(1000), hundredThousand(100000), million(1000000);
    auto const copies = [&](char const* name, Population const& p) {
        table.Row(
            name, 1.5, [&] { return CopyTree(p, 20000); },
            [&] { return CopyTree(thousand, 20000); }, 20000, 31);
    };
    copies("copy and drop a tree of 100,000 (against one of 1,000)", hundredThousand);
    copies("copy and drop a tree of 1,000,000 (against one of 1,000)", million);
    std::size_t ours = 0, peer = 0, dropped = 0;
    table.Row(
        "copy a tree of 100,000 and change one (against a look-up in a map)", 3.5,
        [&] { return CopyAndChange(hundredThousand, 500, ours); },
        [&] { return LookUpSome(hundredThousand, 500, peer); }, 500, 61);
    table.Row(
        "the same with the end of the copy", ratio::forInformation,
        [&] { return CopyChangeAndDrop(hundredThousand, 500, dropped); },
        [&] { return LookUpSome(hundredThousand, 500, peer); }, 500, 61);
    struct Asked {
        char const* name;
        Population& population;
        double lookUp;
    };
    Asked const all[] = {{" at 1,000", thousand, 1.25},
                         {" at 100,000", hundredThousand, 1.9},
                         {" at 1,000,000", million, 1.9}};
    for (Asked const& asked : all) {
        Population& p = asked.population;
        double const asks = static_cast<double>(p.askedKeys.size());
        table.Row(
            std::string("look up by name") + asked.name, asked.lookUp,
            [&] { return LookUpTree(p); }, [&] { return LookUpMap(p); }, asks,
            p.size > 1000 ? 31 : 201);
    }
    for (Asked const& asked : all) {
        Population& p = asked.population;
        std::vector<std::string> fresh(p.askedNames.begin(), p.askedNames.begin() + 1000);
        for (std::string& name : fresh) name += "b";
        std::vector<cow_String> const freshKeys = AsKeys(fresh);
        table.Row(
            std::string("insert one") + asked.name, 2.0,
            [&] { return InsertIntoTree(p, freshKeys); }, [&] { return InsertIntoMap(p, fresh); },
            1000, 31);
    }
    for (Asked const& asked : {all[0], all[1]}) {
        Population& p = asked.population;
        int const rounds = p.size > 1000 ? 11 : 201;
        table.Row(
            std::string("build from nothing") + asked.name, 2.0, [&] { return BuildTree(p); },
            [&] { return BuildMap(p); }, p.size, rounds);
        table.Row(
            std::string("destroy") + asked.name, 0.8, [&] { return DestroyTree(p); },
            [&] { return DestroyMap(p); }, p.size, rounds);
    }
    table.Row(
        "walk in order at 100,000", 0.6, [&] { return WalkTree(hundredThousand); },
        [&] { return WalkMap(hundredThousand); }, 100000, 31);
    atr_setNaturalOrder(true);
    table.Row(
        "look up in natural order (against bytewise) at 100,000", 1.1,
        [&] { return LookUpTree(hundredThousand); },
        [&] {
            atr_setNaturalOrder(false);
            double const seconds = LookUpTree(hundredThousand);
            atr_setNaturalOrder(true);
            return seconds;
        },
        20000, 61);
    Population named(100000, "S355J2 plate t=%d mm, rolled");
    table.Row(
        "look up by longer name at 100,000", 1.9, [&] { return LookUpTree(named); },
        [&] { return LookUpMap(named); }, 20000, 31);
}

template <class List, class Model, class T>
void Ends(ratio::Table& table, std::string const& of, T const& value, double append,
          double prepend) {
    int const n = 100000;
    table.Row(
        "append 100,000 " + of + " (against std::vector)", append,
        [&] {
            List list;
            return ratio::Seconds([&] {
                for (int i = 0; i < n; ++i) list.Append(value);
            });
        },
        [&] {
            std::vector<T> model;
            return ratio::Seconds([&] {
                for (int i = 0; i < n; ++i) model.push_back(value);
            });
        },
        n, 41);
    table.Row(
        "prepend 100,000 " + of + " (against std::deque)", prepend,
        [&] {
            List list;
            return ratio::Seconds([&] {
                for (int i = 0; i < n; ++i) list.Prepend(value);
            });
        },
        [&] {
            Model model;
            return ratio::Seconds([&] {
                for (int i = 0; i < n; ++i) model.push_front(value);
            });
        },
        n, 41);
}

template <class T>
void SetOne(ratio::Table& table, std::string const& of, T const& value, double atMost) {
    std::vector<T> const model(100000, value);
    cow_List<T> list;
    list.Fill(100000, value);
    table.Row(
        "set one " + of + " after a copy (against copying a vector of 100,000)", atMost,
        [&] {
            std::vector<cow_List<T>> copies(20);
            return ratio::Seconds([&] {
                for (cow_List<T>& one : copies) {
                    one = list;
                    one.Get(50000) = value;
                }
            });
        },
        [&] {
            std::vector<std::vector<T>> copies(20);
            return ratio::Seconds([&] {
                for (std::vector<T>& one : copies) {
                    one = model;
                    one[50000] = value;
                }
            });
        },
        20, 41);
}

void Lists(ratio::Table& table) {
    cow_List<int> small, large;
    small.Fill(1000, 1);
    large.Fill(1000000, 1);
    auto const copy = [](cow_List<int> const& list) {
        return ratio::Seconds([&] {
            for (int i = 0; i < 20000; ++i) {
                cow_List<int> const copied(list);
                ratio::Keep(&copied);
            }
        });
    };
    table.Row(
        "copy a list of 1,000,000 (against one of 1,000)", 1.5, [&] { return copy(large); },
        [&] { return copy(small); }, 20000, 31);
    Handle const value(new Object(1));
    Ends<cow_List<int>, std::deque<int>>(table, "integers", 1, ratio::forInformation,
                                         ratio::forInformation);
    Ends<cow_List<Handle>, std::deque<Handle>>(table, "handles", value, 2.0, 2.3);
    SetOne<int>(table, "integer", 1, ratio::forInformation);
    SetOne<Handle>(table, "handle", value, 0.05);
}

}  // namespace

int main() {
    ratio::Table table;
    Lists(table);
    Trees(table);
    std::printf("%d missed\n", table.Missed());
    return table.Missed() ? 1 : 0;
}
