#include "nga_PyDepth.h"

#include <set>
#include <unordered_map>

#include "cls_xp.h"
#include "nga_JsonWriter.h"
#include "nga_TextForm.h"

namespace nga::python {

namespace {

using Path = std::set<mdl_Description const*>;

/// Whether a walk down the classes comes to one that it has come through already.
bool FindsCircle(mdl_Description const& description, Path& path) {
    if (!path.insert(&description).second) return true;
    bool found = false;
    for (mdl_Field const* field : description.AllFields()) {
        mdl_FieldType const& type = field->Type();
        if (found || !type.Held() || IsTable(*type.Held())) continue;
        // A copy, since what is given is good until the next call.
        std::vector<NamedClass> const below = ClassesBelow(*type.Held());
        for (NamedClass const& held : below) found = found || FindsCircle(*held.description, path);
    }
    path.erase(&description);
    return found;
}

/// Whether objects of this class, or of one below it, can nest without end.
bool CanNest(mdl_Description const& description) {
    static std::unordered_map<mdl_Description const*, bool> known;
    auto const [place, isNew] = known.emplace(&description, false);
    if (isNew) {
        std::vector<NamedClass> const below = ClassesBelow(description);
        for (NamedClass const& one : below) {
            Path path;
            place->second = place->second || FindsCircle(*one.description, path);
        }
    }
    return place->second;
}

/// The levels that the value of a field takes beyond the object's, objects apart.
int PlainLevels(mdl_Field const& field, void const* at) {
    mdl_FieldType const& type = field.Type();
    auto const ofTable = [](void const* cells) {
        return static_cast<cls_xp2DArrayDouble const*>(cells)->Rows() > 0 ? 2 : 1;
    };
    switch (type.Kind()) {
        case mdl_FieldKind::IntList:
        case mdl_FieldKind::DoubleList:
        case mdl_FieldKind::FloatMap:
            return 1;
        case mdl_FieldKind::Array:
            return ofTable(at);
        case mdl_FieldKind::Object:
            return IsTable(*type.Held()) ? ofTable(CellsOf(*type.Held()).At(at)) : 0;
        default:
            return 0;
    }
}

/// The deepest level on which an object was walked already: objects are shared, and an object that
/// is put into itself again and again stands in more places than can be walked.
using Walked = std::unordered_map<void const*, int>;

bool ReachesTooDeep(mdl_Description const& description, void const* object, int level,
                    Walked& walked) {
    if (level > jsonMaxDepth) return true;
    // No class that cannot nest has as many levels as are left there.
    constexpr int enough = jsonMaxDepth / 2;
    if (level < enough && !CanNest(description)) return false;
    int& deepest = walked[object];
    if (deepest >= level) return false;
    deepest = level;
    DescribedObject usual;
    for (mdl_Field const* field : description.AllFields()) {
        mdl_FieldType const& type = field->Type();
        void const* const at = field->At(object);
        if (int const plain = PlainLevels(*field, at); level + plain > jsonMaxDepth) {
            // What is as the constructor leaves it is in no text.
            if (!usual) usual = DescribedObject(description.Create(), {&description});
            if (!type.Same(at, field->At(static_cast<void const*>(usual.get())))) return true;
        }
        if (!type.Held() || IsTable(*type.Held())) continue;
        if (level < enough && !CanNest(*type.Held())) continue;
        for (int i = 0; i < type.Count(at); ++i) {
            void const* const inner = type.ConstObject(at, i);
            mdl_Description const* const held =
                inner ? mdl_Description::Find(type.DynTypeIdOf(inner)) : nullptr;
            if (held && ReachesTooDeep(*held, inner, level + StepsTo(*field), walked)) return true;
        }
    }
    return false;
}

}  // namespace

int LevelOf(Object* object) {
    int level = 0;
    for (ObjectState const* state = &object->state;;
         state = &reinterpret_cast<Object*>(state->owner)->state) {
        if (!state->field) return level + (state->session ? levelOfNamed : 1);
        level += StepsTo(*state->field);
    }
}

int StepsTo(mdl_Field const& field) {
    mdl_FieldKind const kind = field.Type().Kind();
    return kind == mdl_FieldKind::OptionList || kind == mdl_FieldKind::ObjectList ? 2 : 1;
}

void RequireDepth(std::string const& place, mdl_Description const& description, void const* object,
                  int level) {
    Walked walked;
    if (!ReachesTooDeep(description, object, level, walked)) return;
    Fail(PyExc_ValueError, place + ": the objects nest too deep; expected at most " +
                               std::to_string(jsonMaxDepth) +
                               " levels of objects and lists, as in texts");
}

void RequireDepth(mdl_Description const& owner, mdl_Field const& field, FieldValue const& value,
                  int level) {
    auto const* const objects = std::get_if<std::vector<DescribedObject>>(&value);
    if (!objects) return;
    for (DescribedObject const& object : *objects)
        if (object)
            RequireDepth(std::string(owner.Constructor() ? owner.Constructor() : owner.Name()) +
                             "." + field.Script(),
                         *object.get_deleter().description, object.get(), level + StepsTo(field));
}

}  // namespace nga::python
