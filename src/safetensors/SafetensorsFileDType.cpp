#include "safetensors/SafetensorsFileDType.h"

#include <array>

namespace {

struct DTypeRow {
    std::string_view text;
    std::uint64_t size; // in bytes
};

// In the order of DType.
constexpr std::array<DTypeRow, 13> dtypeRows{{{"BOOL", 1},
                                              {"U8", 1},
                                              {"I8", 1},
                                              {"I16", 2},
                                              {"U16", 2},
                                              {"F16", 2},
                                              {"BF16", 2},
                                              {"I32", 4},
                                              {"U32", 4},
                                              {"F32", 4},
                                              {"F64", 8},
                                              {"I64", 8},
                                              {"U64", 8}}};

const DTypeRow& dtypeRow(DType dtype) {
    return dtypeRows[static_cast<std::size_t>(dtype)];
}

} // namespace

std::optional<DType> dtypeFromText(std::string_view text) {
    for (std::size_t i = 0; i < dtypeRows.size(); ++i) {
        if (dtypeRows[i].text == text)
            return static_cast<DType>(i);
    }
    return std::nullopt;
}

std::string_view dtypeText(DType dtype) {
    return dtypeRow(dtype).text;
}

std::uint64_t dtypeSize(DType dtype) {
    return dtypeRow(dtype).size;
}

std::string tensorSummary(const TensorInfo& tensor) {
    std::string text(dtypeText(tensor.dtype));
    text += " [";
    for (std::size_t i = 0; i < tensor.shape.size(); ++i)
        text.append(i == 0 ? "" : ", ").append(std::to_string(tensor.shape[i]));
    return text + "]";
}
