#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "cow_List.h"
#include "cow_ListIter.h"
#include "cow_String.h"
#include "cow_TestSupport.h"

namespace {

template <class T>
struct Element;
template <>
struct Element<int> {
    static int Make(int value) { return value; }
    static void Set(int& element, int value) { element = value; }
    static int Value(int element) { return element; }
};
template <>
struct Element<cow_String> {
    static cow_String Make(int value) { return cow_String(value); }
    static void Set(cow_String& element, int value) { element = cow_String(value); }
    static int Value(cow_String const& element) { return std::atoi(element.Text()); }
};
template <>
struct Element<Tracked> {
    static Tracked Make(int value) { return Tracked(value); }
    static void Set(Tracked& element, int value) { element.Set(value); }
    static int Value(Tracked const& element) { return element.Value(); }
};
template <>
struct Element<TrackedHandle> {
    static TrackedHandle Make(int value) { return TrackedHandle(new Tracked(value)); }
    static void Set(TrackedHandle& element, int value) { element.Get().Set(value); }
    static int Value(TrackedHandle const& element) { return element.ConstGet().Value(); }
};

template <class T>
class CowListModel : public ::testing::Test {
protected:
    using Model = std::vector<int>;

    static void ExpectSame(cow_List<T> const& list, Model const& model) {
        ASSERT_EQ(list.Size(), static_cast<int>(model.size()));
        // A hint alone may leave a table that is no multiple of 16, and only at larger pages.
        if (list.Shift() == 4) {
            ASSERT_EQ(list.TableLength() % 16, 0);
        }
        cow_ListIter<T> walk(list);
        std::size_t i = 0;
        for (bool more = walk.First(); more; more = walk.Next(), ++i) {
            ASSERT_EQ(Element<T>::Value(walk.CurrentItem()), model[i]);
            ASSERT_EQ(&walk.CurrentItem(), &list.ConstGet(static_cast<int>(i)));
        }
        ASSERT_EQ(i, model.size());
    }

    void Run(unsigned seed, int steps, int largest) {
        std::mt19937 random(seed);
        auto const below = [&random](int n) {
            return n <= 0 ? 0 : static_cast<int>(random() % static_cast<unsigned>(n));
        };
        std::vector<cow_List<T>> lists(4);
        std::vector<Model> models(4);
        for (int step = 0; step < steps; ++step) {
            std::size_t const at = random() % 4;
            cow_List<T>& list = lists[at];
            Model& model = models[at];
            int const size = list.Size();
            int const value = below(100000);
            T const element = Element<T>::Make(value);
            switch (random() % 22) {
                case 0: {
                    std::size_t const from = random() % 4;
                    list = lists[from];
                    model = Model(models[from]);
                    break;
                }
                case 1:
                case 2:
                case 3: {
                    for (int n = below(20); n >= 0; --n) {
                        list.Append(element);
                        model.push_back(value);
                    }
                    break;
                }
                case 4:
                case 5: {
                    for (int n = below(20); n >= 0; --n) {
                        list.Prepend(element);
                        model.insert(model.begin(), value);
                    }
                    break;
                }
                case 6:
                case 7:
                case 8: {
                    int const i = below(size + 1);
                    list.InsertIndex(i, element);
                    model.insert(model.begin() + i, value);
                    break;
                }
                case 9:
                case 10:
                case 11: {
                    for (int n = below(20); n >= 0 && list.Size() > 0; --n) {
                        int const i = below(list.Size());
                        list.RemoveIndex(i);
                        model.erase(model.begin() + i);
                    }
                    break;
                }
                case 12: {
                    int const n = below(size + 5);
                    list.Resize(n);
                    if (n < size) model.resize(static_cast<std::size_t>(n));
                    break;
                }
                case 13:
                case 14:
                case 15:
                    if (size == 0) break;
                    {
                        int const i = below(size);
                        Element<T>::Set(list.Get(i), value);
                        model[static_cast<std::size_t>(i)] = value;
                    }
                    break;
                case 16: {
                    int const n = below(size + 30);
                    list.Fill(n, element);
                    if (n > size) model.resize(static_cast<std::size_t>(n), value);
                    break;
                }
                case 17: {
                    std::size_t const from = random() % 4;
                    Model const added(models[from]);
                    list.Concatenate(lists[from]);
                    model.insert(model.end(), added.begin(), added.end());
                    break;
                }
                case 18: {
                    int const from = below(size), to = from + below(size - from + 1);
                    list = list.Slice(from, to);
                    model = Model(model.begin() + from, model.begin() + to);
                    break;
                }
                case 19: {
                    int const n = below(40), index = below(size + 1);
                    std::vector<T> block(static_cast<std::size_t>(n), element);
                    list.InitializeBlock(block.data(), index, n);
                    if (index + n > size) model.resize(static_cast<std::size_t>(index + n));
                    for (int i = 0; i < n; ++i) model[static_cast<std::size_t>(index + i)] = value;
                    break;
                }
                case 20:
                    if (size == 0) break;
                    ASSERT_EQ(Element<T>::Value(list.Pop()), model.back());
                    model.pop_back();
                    break;
                default: {
                    list = cow_List<T>(cow_ListConstruct(), below(3000));
                    model.clear();
                }
            }
            if (list.Size() > largest) {
                list.Resize(largest / 8);
                model.resize(static_cast<std::size_t>(largest / 8));
            }
            ASSERT_NO_FATAL_FAILURE(ExpectSame(list, model)) << "step " << step;
            if (step % 16 == 0) {
                for (std::size_t i = 0; i < 4; ++i) {
                    ASSERT_NO_FATAL_FAILURE(ExpectSame(lists[i], models[i])) << "step " << step;
                }
            }
        }
    }
};

using ElementTypes = ::testing::Types<int, cow_String, Tracked, TrackedHandle>;
TYPED_TEST_SUITE(CowListModel, ElementTypes);

}  // namespace

TYPED_TEST(CowListModel, BehavesAsAVectorOverSharingCopies) {
    long const before = Tracked::alive;
    for (unsigned seed = 1; seed <= 12; ++seed) {
        ASSERT_NO_FATAL_FAILURE(this->Run(seed, 1500, 700)) << "seed " << seed;
        ASSERT_EQ(Tracked::alive, before);
    }
}
