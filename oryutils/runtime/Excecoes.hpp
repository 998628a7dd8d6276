#pragma once

#include "oryutils/OryExport.hpp"

#include <exception>
#include <string>
#include <string_view>

namespace OryUtils {

/// The general exception of the library; its message is Portuguese.
class ORY_API Exception : public std::exception {
public:
    explicit Exception(std::u16string_view AMensagem);

    const std::u16string& GetMensagem() const noexcept { return FMensagem; }
    /// The message in UTF-8.
    const char* what() const noexcept override { return FWhat.c_str(); }
    /// Name of the class, for protocols and logs ("EConvertError").
    virtual const char* GetNomeDaClasse() const noexcept { return "Exception"; }

private:
    std::u16string FMensagem;
    std::string FWhat;
};

/// The silent exception: ends the caller's handler without a further message. Hosts swallow it.
class ORY_API EAbort : public Exception {
public:
    EAbort() : Exception(u"Operação cancelada") {}
    const char* GetNomeDaClasse() const noexcept override { return "EAbort"; }
};

/// A text that is not the number, date or code it should be.
class ORY_API EConvertError : public Exception {
public:
    using Exception::Exception;
    const char* GetNomeDaClasse() const noexcept override { return "EConvertError"; }
};

/// A value of another kind than the operation takes.
class ORY_API EInvalidCast : public Exception {
public:
    using Exception::Exception;
    const char* GetNomeDaClasse() const noexcept override { return "EInvalidCast"; }
};

/// A position outside a list.
class ORY_API EListError : public Exception {
public:
    using Exception::Exception;
    const char* GetNomeDaClasse() const noexcept override { return "EListError"; }
};

/// What a value of a kind known only at run time refuses.
class ORY_API EVariantError : public Exception {
public:
    using Exception::Exception;
    const char* GetNomeDaClasse() const noexcept override { return "EVariantError"; }
};

/// Such a value does not turn into the kind wanted.
class ORY_API EVariantTypeCastError : public EVariantError {
public:
    using EVariantError::EVariantError;
    const char* GetNomeDaClasse() const noexcept override { return "EVariantTypeCastError"; }
};

/// The message of the exception that a catch clause is handling: that of an Exception, what() of another one, and
/// nothing for what is no std::exception.
ORY_API std::u16string BuscarMensagemDaExcecaoAtual();

/// Raises EAbort.
[[noreturn]] ORY_API void Abort();

}  // namespace OryUtils
