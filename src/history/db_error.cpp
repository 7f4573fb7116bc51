#include "history/db_error.h"

namespace velmora {

QString DBError::description() const {
    const QString failure = kind == Kind::open ? QStringLiteral("Couldn't open Messages history: ")
                                               : QStringLiteral("Couldn't read Messages history: ");
    return failure + message;
}

}  // namespace velmora
