#pragma once

/// The abstract root that shortcuts are resolved against: something that holds databases by key.
/// Steps pass it through; only a chain's root step asks it.
template <class K, class Tag>
class mdl_Container {
public:
    virtual ~mdl_Container() = default;
    /// Null where nothing is held under the key.
    virtual Tag* Find(K const& key) = 0;
    virtual Tag const* ConstFind(K const& key) const = 0;
};
