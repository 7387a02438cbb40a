// The fuzz targets: one per reader of the data files (each file format, the item codec) and per
// parser of dates and numbers. Each takes any bytes; what a reader refuses it refuses with a
// core::Error, anything else (a crash, another exception, a file that reads differently once
// written back) is a fault.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace fuzz {

using Run = void (*)(const std::uint8_t* data, std::size_t size);
struct Target {
    const char* name;
    Run run;
};
const std::vector<Target>& targets();
// The target of that name, or nullptr.
Run find(const std::string& name);

}  // namespace fuzz
