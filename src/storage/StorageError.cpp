#include "storage/StorageError.h"

namespace tessarine {

QString StorageError::errorDescription() const {
    return std::visit([](const auto& cause) { return cause.errorDescription(); }, error);
}

} // namespace tessarine
