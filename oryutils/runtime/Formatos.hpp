#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/types/OryTypesFormatos.hpp"

namespace OryUtils {

using OryTypes::TFormatSettings;

/// The process-wide formats: those of the user's locale, read at the first use. Every conversion of the library reads
/// them. Other threads may read them while nobody changes them; change them before starting threads.
ORY_API const TFormatSettings& FormatSettings();
/// Replaces the process-wide formats.
ORY_API void DefinirFormatSettings(const TFormatSettings& AFormatos);

/// The Brazilian formats: 31/12/2024, 23:59:59, 1.234,56, "05  de MARCO de 2024", months in capitals (JAN, JANEIRO),
/// days as "Dom", "Domingo", "Segunda".
ORY_API const TFormatSettings& BuscarFormatosBrasileiros();

/// True while the process-wide formats are being set by TFormatosEmConfiguracao: a host that answers the system's
/// notice of changed settings by reading the formats again leaves them alone then.
ORY_API bool EstahConfigurandoFormatos() noexcept;

/// Makes EstahConfigurandoFormatos true for the time of a scope.
class ORY_API TFormatosEmConfiguracao {
public:
    TFormatosEmConfiguracao() noexcept;
    ~TFormatosEmConfiguracao();
    TFormatosEmConfiguracao(const TFormatosEmConfiguracao&) = delete;
    TFormatosEmConfiguracao& operator=(const TFormatosEmConfiguracao&) = delete;
};

/// Process-wide formats for the time of a scope, then back (tests, commands).
class TFormatosTemporarios {
public:
    explicit TFormatosTemporarios(const TFormatSettings& AFormatos) : FAnteriores(FormatSettings()) {
        DefinirFormatSettings(AFormatos);
    }
    ~TFormatosTemporarios() { DefinirFormatSettings(FAnteriores); }
    TFormatosTemporarios(const TFormatosTemporarios&) = delete;
    TFormatosTemporarios& operator=(const TFormatosTemporarios&) = delete;

private:
    TFormatSettings FAnteriores;
};

}  // namespace OryUtils
