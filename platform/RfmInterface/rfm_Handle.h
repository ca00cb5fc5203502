#pragma once

#include <memory>
#include <string>

/// Refers to a stored array: its bytes, shared by all that refer to it, until a row takes them into
/// its record. Null refers to none.
class rfm_Handle {
public:
    rfm_Handle() = default;
    explicit rfm_Handle(std::shared_ptr<std::string> bytes) : m_bytes(std::move(bytes)) {}

    bool IsNull() const { return m_bytes == nullptr; }
    std::shared_ptr<std::string> const& Bytes() const { return m_bytes; }

private:
    std::shared_ptr<std::string> m_bytes;
};
