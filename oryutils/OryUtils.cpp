#include "oryutils/OryUtils.hpp"

#include "oryutils/changes/UnOryUtilsClasses.hpp"
#include "oryutils/dates/OryUtilsDatas.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"
#include "oryutils/system/OryUtilsRegistry.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"
#include "oryutils/text/UnOryUtilsMatematica.hpp"
#include "oryutils/ui/OryUtilsControls.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include <array>
#include <mutex>

namespace OryUtils {
namespace {

struct TUnidade {
    void (*Iniciar)();
    void (*Finalizar)();
};

template <auto& AInstancia>
constexpr TUnidade UnidadeDe() {
    return {[] { AInstancia.Criar(); }, [] { AInstancia.Liberar(); }};
}

// Every global instance, in starting order; they stop in the opposite one.
constexpr std::array CUnidades{
    UnidadeDe<GOryUtilsStrings>(),    UnidadeDe<GOryUtilsMatematica>(),  UnidadeDe<GOryUtilsDatas>(),
    UnidadeDe<GOryUtilsSistema>(),    UnidadeDe<GOryUtilsRegistro>(),    UnidadeDe<GOryUtilsFiles>(),
    UnidadeDe<GOryUtilsValidacoes>(), UnidadeDe<GOryUtilsFormatacoes>(), UnidadeDe<GOryUtilsControls>(),
    UnidadeDe<GOryUtilsClasses>(),    UnidadeDe<GOryUtilsDialogs>(),     TUnidade{IniciarInterface, FinalizarInterface},
};

// Not constinit: the mutex of mingw-w64 has no constant initializer.
std::mutex GTrava;
constinit int GInicios = 0;

}  // namespace

void IniciarOryUtils() {
    const std::lock_guard trava(GTrava);
    if (GInicios++ > 0) return;
    for (const TUnidade& unidade : CUnidades) unidade.Iniciar();
}

void FinalizarOryUtils() noexcept {
    const std::lock_guard trava(GTrava);
    if (GInicios == 0 || --GInicios > 0) return;
    for (auto unidade = CUnidades.rbegin(); unidade != CUnidades.rend(); ++unidade) unidade->Finalizar();
}

int BuscarContadorInicioOryUtils() noexcept {
    const std::lock_guard trava(GTrava);
    return GInicios;
}

const char* BuscarVersaoOryUtils() noexcept { return ORYUTILS_VERSAO; }

}  // namespace OryUtils

namespace {

// Lives as long as the library is loaded.
struct TCargaDaBiblioteca {
    TCargaDaBiblioteca() { OryUtils::IniciarOryUtils(); }
    ~TCargaDaBiblioteca() { OryUtils::FinalizarOryUtils(); }
};

}  // namespace

// The name by which a static link pulls this object in.
extern "C" const char OryUtilsInicio[];
const char OryUtilsInicio[] = ORYUTILS_VERSAO;
static const TCargaDaBiblioteca GCarga;
