#include <colour/rows/VectorRows.h>

// In place of the vector rows where Highway is not installed.

namespace Norvane { namespace Colour { namespace Rows {

const DecodeTable* decodeTable()
{
    return nullptr;
}
const EncodeTable* encodeTable()
{
    return nullptr;
}

}}} // namespace Norvane::Colour::Rows
