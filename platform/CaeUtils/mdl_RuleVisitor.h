#pragma once

#include "atr_String.h"
#include "cow_ArrayCOW.h"
#include "cow_String.h"

class mdl_Description;

/// What a class's rules need of their module: the texts of its error codes, and its assertion.
struct mdl_Module {
    char const* prefix;                 ///< "kma"
    atr_String (*errorText)(int code);  ///< empty for a code outside the table
    void (*fail)(int code);             ///< raises with the code's text
    /// The same for the codes whose texts name something; null in a module that has none.
    atr_String (*contentText)(int code, cow_String const& content) = nullptr;
    void (*failContent)(int code, cow_String const& content) = nullptr;
};

/// How to go on with an object that a rule function asks, its class being known only there.
struct mdl_Asked {
    void (*assertValid)(void const* object);
    unsigned (*dynTypeId)(void const* object);
};

/// Runs over a class's rules. A class states its rules once, in order, as one function over this:
/// *Rule* gives a condition and the code that it raises, *Ask* goes on with a sub-object. What a
/// class does not ask is not part of its validity.
class mdl_RuleVisitor {
public:
    /// Returns whether the rule holds, so that what may be read only if it does can depend on it.
    bool Rule(bool holds, int code) {
        Seen(code);
        if (!holds) Failed(code);
        return holds;
    }

    /// The same for a rule whose text names something: the code is one of the module's content
    /// codes.
    bool ContentRule(bool holds, int code, char const* content) {
        SeenContent(code, content);
        if (!holds) FailedContent(code, cow_String(content));
        return holds;
    }

    /// An optional member, if present.
    template <class T, class P>
    void Ask(cow_ArrayCOW<T, P> const& member) {
        if (T const* object = member.GetPtr()) Object(&member, 0, object, AskedAs<T>());
    }
    /// A member held by value.
    template <class T>
    void Ask(T const& member) {
        Object(&member, 0, &member, AskedAs<T>());
    }
    /// Each element of a list, in order; elements without a value have nothing to ask.
    template <class List>
    void AskEach(List const& list) {
        for (int i = 0; i < list.Size(); ++i) AskElement(&list, i, list.ConstGet(i));
    }

    /// Rules that an owner has about one element of a list of its own, such as what the element may
    /// refer to: a visitor that collects says of the element, and not of the owner, what fails.
    template <class List, class Rules>
    void About(List const& list, int index, Rules const& rules) {
        Element(
            &list, index,
            [](void const* context, mdl_RuleVisitor& visitor) {
                (*static_cast<Rules const*>(context))(visitor);
            },
            &rules);
    }

protected:
    using ElementRules = void (*)(void const* context, mdl_RuleVisitor& visitor);

    ~mdl_RuleVisitor() = default;
    virtual void Failed(int code) = 0;
    /// Every rule that is come to, whether it holds or not: for those who list a class's rules.
    virtual void Seen(int /*code*/) {}
    virtual void SeenContent(int /*code*/, char const* /*content*/) {}
    /// A visitor that keeps the two tables of codes apart overrides this.
    virtual void FailedContent(int code, cow_String const& /*content*/) { Failed(code); }
    virtual void Element(void const* /*member*/, int /*index*/, ElementRules rules,
                         void const* context) {
        rules(context, *this);
    }
    /// \p member is the address of the member that holds \p object, \p index its place in a list.
    virtual void Object(void const* member, int index, void const* object, mdl_Asked how) = 0;

private:
    template <class T>
    static mdl_Asked AskedAs() {
        return {[](void const* object) { static_cast<T const*>(object)->AssertValid(); },
                [](void const* object) { return static_cast<T const*>(object)->DynTypeId(); }};
    }
    template <class T, class P>
    void AskElement(void const* list, int index, cow_ArrayCOW<T, P> const& element) {
        if (T const* object = element.GetPtr()) Object(list, index, object, AskedAs<T>());
    }
    template <class T>
    void AskElement(void const* list, int index, T const& element) {
        Object(list, index, &element, AskedAs<T>());
    }
};

/// The visitor behind AssertValid(): the first failure raises.
class mdl_AssertingVisitor final : public mdl_RuleVisitor {
public:
    explicit mdl_AssertingVisitor(mdl_Module const& module) : m_module(module) {}

protected:
    void Failed(int code) override { m_module.fail(code); }
    void FailedContent(int code, cow_String const& content) override {
        m_module.failContent(code, content);
    }
    void Object(void const*, int, void const* object, mdl_Asked how) override {
        how.assertValid(object);
    }

private:
    mdl_Module const& m_module;
};
