#pragma once

#include <vector>

#include "ddr_Model.h"
#include "mdl_Container.h"

/// The models that shortcuts may start from, by name. It does not own them: whoever owns a model
/// takes it out before the model goes. A model may be renamed while it is in; of two with one name
/// the one that came first answers.
class ddr_Session : public mdl_Container<cow_String, ddr_Ddb> {
public:
    void Add(ddr_Model& model);
    /// A model that is not in is no failure.
    void Remove(ddr_Model const& model);

    /// A session holds few models, so that a scan by their present names is all there is.
    ddr_Ddb* Find(cow_String const& name) override;
    ddr_Ddb const* ConstFind(cow_String const& name) const override;

private:
    std::vector<ddr_Model*> m_models;
};
