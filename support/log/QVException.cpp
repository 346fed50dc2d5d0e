#include "support/log/QVException.h"

#include "support/log/QVLog.h"

#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <typeinfo>

namespace vantrell
{

namespace
{

QString readableName(const std::type_info &type)
{
    int status = 0;
    const std::unique_ptr<char, void (*)(void *)> name(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), std::free);
    return QString::fromUtf8(name ? name.get() : type.name());
}

} // namespace

QString QVException::logException(const QString &name, const QString &reason, const char *method)
{
    const QString text = formatText(u"Exception in %s. %@ - %@.", method, name, reason);
    QVLog::appendLogAndPrint(u"%@", text);
    return text;
}

QString QVException::logException(const std::exception &exception, const char *method)
{
    return logException(readableName(typeid(exception)), QString::fromUtf8(exception.what()), method);
}

QString QVException::logCurrentException(const char *method)
{
    try {
        throw;
    } catch (const std::exception &exception) {
        return logException(exception, method);
    } catch (...) {
        const std::type_info *type = abi::__cxa_current_exception_type();
        return logException(type ? readableName(*type) : QStringLiteral("unknown exception"),
                            QStringLiteral("no reason given"), method);
    }
}

bool QVException::didTimeout(const QString &name)
{
    return name == QStringLiteral("NSPortTimeoutException");
}

} // namespace vantrell
