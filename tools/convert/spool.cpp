#include "spool.h"

#include "error.h"
#include "filebytes.h"

#include <functional>

Extent Spool::add(const std::string &data)
{
    const std::size_t hash = std::hash<std::string>()(data);
    const auto [first, last] = m_known.equal_range(hash);
    for (auto known = first; known != last; ++known) {
        if (known->second.length != data.size())
            continue;
        FileBytes bytes(m_file.get());
        bytes.seek(known->second.offset);
        if (bytes.read(data.size()) == data)
            return known->second;
    }
    if (!writeAll(m_file.get(), data))
        throw systemError("cannot write", "the pages");
    const Extent extent = {m_size, data.size(), true};
    m_size += data.size();
    return m_known.emplace(hash, extent)->second;
}
