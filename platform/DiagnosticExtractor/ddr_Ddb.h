#pragma once

class ddr_Model;

/// One database of a session, as the container that shortcuts are resolved against holds it. Only a
/// model is one, so that whoever finds one may take it as the model.
class ddr_Ddb {
public:
    ddr_Ddb(ddr_Ddb const&) = delete;
    ddr_Ddb& operator=(ddr_Ddb const&) = delete;

private:
    friend class ddr_Model;
    ddr_Ddb() = default;
    ~ddr_Ddb() = default;
};
