// Containers against plain ones: the input is a program of operations on three lists and three
// trees that are copied into each other, so that most of what they hold is shared.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "atr_NaturalOrder.h"
#include "cow_ArrayCOW.h"
#include "cow_BtreeIterator.h"
#include "cow_BtreeUtils.h"
#include "cow_List.h"
#include "cow_String.h"
#include "mem_AllocationOperators.h"

namespace {

struct NaturalLess {
    bool operator()(std::string const& a, std::string const& b) const {
        return strnatcmp(a.c_str(), b.c_str()) < 0;
    }
};

struct Object : mem_AllocationOperators {
    explicit Object(int number) : value(number) {}
    int value;
};

using Handle = cow_ArrayCOW<Object, cow_Direct<Object>>;
using List = cow_List<cow_String>;
using Tree = cow_Btree<cow_String, Handle>;
using Map = std::map<std::string, int, NaturalLess>;

// The input, byte by byte; zeros when it is at its end.
class Program {
public:
    Program(std::uint8_t const* data, std::size_t size) : m_data(data), m_left(size) {}
    bool More() const { return m_left > 0; }
    int Byte() {
        if (m_left == 0) return 0;
        --m_left;
        return *m_data++;
    }
    // Few keys, so that they are met again; with digits, so that the natural order matters.
    std::string Key() {
        int const byte = Byte();
        return std::string(1, static_cast<char>('a' + byte % 3)) + std::to_string(byte / 3 % 40);
    }

private:
    std::uint8_t const* m_data;
    std::size_t m_left;
};

void Require(bool holds, char const* what) {
    if (holds) return;
    std::fprintf(stderr, "containers differ: %s\n", what);
    std::abort();
}

void CheckList(List const& list, std::vector<std::string> const& model) {
    Require(list.Size() == static_cast<int>(model.size()), "size of a list");
    for (int i = 0; i < list.Size(); ++i)
        Require(list.ConstGet(i) == model[static_cast<std::size_t>(i)].c_str(), "an element");
}

void CheckTree(Tree const& tree, Map const& model) {
    Require(tree.Size() == static_cast<int>(model.size()), "size of a tree");
    cow_BtreeIterator<cow_String, Handle> walk(tree);
    auto expected = model.begin();
    for (bool more = walk.First(); more; more = walk.Next(), ++expected) {
        Require(expected != model.end(), "more keys than there are");
        Require(walk.CurrentKey() == expected->first.c_str(), "a key");
        Require(walk.CurrentValue().ConstGet().value == expected->second, "a value");
    }
    Require(expected == model.end(), "fewer keys than there are");
}

void StepList(Program& program, List& list, std::vector<std::string>& model) {
    int const size = list.Size();
    std::string const text = program.Key();
    cow_String const value(text.c_str());
    auto const at = [&](int limit) { return limit == 0 ? 0 : program.Byte() % limit; };
    switch (program.Byte() % 10) {
        case 0:
            list.Append(value);
            model.push_back(text);
            break;
        case 1:
            list.Prepend(value);
            model.insert(model.begin(), text);
            break;
        case 2: {
            int const i = at(size + 1);
            list.InsertIndex(i, value);
            model.insert(model.begin() + i, text);
            break;
        }
        case 3:
            if (size > 0) {
                int const i = at(size);
                list.RemoveIndex(i);
                model.erase(model.begin() + i);
            }
            break;
        case 4:
            if (size > 0) {
                int const i = at(size);
                list.Get(i) = value;
                model[static_cast<std::size_t>(i)] = text;
            }
            break;
        case 5: {
            int const n = at(size + 1);
            list.Resize(n);
            model.resize(static_cast<std::size_t>(n));
            break;
        }
        case 6: {
            int const n = size + program.Byte() % 40;
            list.Fill(n, value);
            model.resize(static_cast<std::size_t>(n), text);
            break;
        }
        case 7: {
            int const from = program.Byte() % 60 - 10;
            int const to = program.Byte() % 60 - 10;
            List const part = list.Slice(from, to);
            int const low = std::min(std::max(from, 0), size);
            int const high = std::min(std::max(to, low), size);
            CheckList(part, {model.begin() + low, model.begin() + high});
            break;
        }
        case 8:
            if (size < 500) {
                std::vector<std::string> const copy = model;
                list.Concatenate(list);
                model.insert(model.end(), copy.begin(), copy.end());
            }
            break;
        default:
            if (size > 0) {
                Require(list.Pop() == model.back().c_str(), "the last element");
                model.pop_back();
            }
            break;
    }
}

void StepTree(Program& program, Tree& tree, Map& model) {
    std::string const text = program.Key();
    cow_String const key(text.c_str());
    int const number = program.Byte();
    switch (program.Byte() % 4) {
        case 0: {
            bool const fresh = model.emplace(text, number).second;
            Require(tree.InsertUnlessMember(key, Handle(new Object(number))) == fresh, "insert");
            break;
        }
        case 1:
            Require(tree.Remove(key) == (model.erase(text) > 0), "remove");
            break;
        case 2:
            if (auto* node = tree.Find(key)) {
                node->Value().Get().value = number;
                model.at(text) = number;
            } else {
                Require(model.count(text) == 0, "find");
            }
            break;
        default: {
            auto const* node = tree.ConstFind(key);
            Require((node != nullptr) == (model.count(text) > 0), "const find");
            break;
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Program program(data, size);
    List lists[3];
    std::vector<std::string> listModels[3];
    Tree trees[3];
    Map treeModels[3];
    while (program.More()) {
        int const what = program.Byte();
        int const one = what % 3;
        int const other = what / 3 % 3;
        switch (what / 9 % 4) {
            case 0:
                StepList(program, lists[one], listModels[one]);
                break;
            case 1:
                lists[one] = lists[other];
                listModels[one] = listModels[other];
                break;
            case 2:
                StepTree(program, trees[one], treeModels[one]);
                break;
            default:
                trees[one] = trees[other];
                treeModels[one] = treeModels[other];
                break;
        }
    }
    for (int i = 0; i < 3; ++i) {
        CheckList(lists[i], listModels[i]);
        CheckTree(trees[i], treeModels[i]);
    }
    return 0;
}
