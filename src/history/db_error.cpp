#include "history/db_error.h"

using namespace Qt::StringLiterals;

namespace velmora {

QString DBError::description() const {
    const QString failure = kind == Kind::open ? u"Couldn't open Messages history: "_s
                                               : u"Couldn't read Messages history: "_s;
    return failure + message;
}

}  // namespace velmora
