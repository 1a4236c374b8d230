#pragma once

#include <QUuid>

namespace tessarine {

// A fresh random (version 4) identity for a record. Drawn from Qt's seeded generators rather
// than QUuid::createUuid(), which asks the kernel for entropy on every call: a scan makes
// one record per item, and identities only need to be unique, not unpredictable.
QUuid makeRecordId();

} // namespace tessarine
