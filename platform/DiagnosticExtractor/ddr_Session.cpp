#include "ddr_Session.h"

#include <algorithm>

void ddr_Session::Add(ddr_Model& model) {
    if (std::find(m_models.begin(), m_models.end(), &model) == m_models.end())
        m_models.push_back(&model);
}

void ddr_Session::Remove(ddr_Model const& model) { std::erase(m_models, &model); }

ddr_Ddb* ddr_Session::Find(cow_String const& name) {
    for (ddr_Model* model : m_models)
        if (model->Name() == name) return model;
    return nullptr;
}

ddr_Ddb const* ddr_Session::ConstFind(cow_String const& name) const {
    for (ddr_Model const* model : m_models)
        if (model->Name() == name) return model;
    return nullptr;
}
