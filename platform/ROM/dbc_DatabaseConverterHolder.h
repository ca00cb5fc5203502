#pragma once

class dbc_DatabaseConverter;

/// Where functions find the running upgrade. There is one at a time, on one thread.
class dbc_DatabaseConverterHolder {
public:
    /// Raises if no upgrade runs.
    dbc_DatabaseConverter& GetDatabaseConverter() const;
    bool IsRunning() const { return m_converter != nullptr; }

    /// Makes a converter the running one for its own life.
    class Running {
    public:
        explicit Running(dbc_DatabaseConverter& converter);
        ~Running();
        Running(Running const&) = delete;
        Running& operator=(Running const&) = delete;
    };

private:
    dbc_DatabaseConverter* m_converter = nullptr;
};
