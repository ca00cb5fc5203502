#include "rfm_FieldHandle.h"

#include <map>
#include <mutex>
#include <string>

rfm_FieldHandle::rfm_FieldHandle(char const* name, int index) : m_index(index) {
    // Handles are constants of functions, which several threads may come to first.
    static std::mutex guard;
    static std::map<std::string, int> numbers;
    std::lock_guard<std::mutex> const lock(guard);
    auto const place = numbers.try_emplace(name, static_cast<int>(numbers.size())).first;
    m_name = place->first.c_str();
    m_number = place->second;
}
