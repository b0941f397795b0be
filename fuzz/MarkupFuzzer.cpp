// Any bytes as a line of markup, drawn on a sheet.
#include "PlainPlatform.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"
#include "basFPrint.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ordwise;
    const PlainPlatform outside;
    ResetWindows();
    ws = Workspace();
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    // Twice: the second line begins where the first one left the pen, on a new sheet if need be.
    PrintMathLine(line, false);
    PrintMathLine(line, true);
    return 0;
}
