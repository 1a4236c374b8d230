#include "storage/CompleteWrite.h"

namespace tessarine {

bool openAndWriteCompletely(QFileDevice& file, const QByteArray& bytes) {
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    for (qint64 written = 0; written < bytes.size();) {
        const qint64 step = file.write(bytes.constData() + written, bytes.size() - written);
        if (step <= 0)
            return false;
        written += step;
    }
    return true;
}

} // namespace tessarine
