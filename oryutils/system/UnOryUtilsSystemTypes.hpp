#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace OryUtils {

/// Unit in which amounts of bytes are told.
enum TFormatoBytes : int { fbBytes, fbKilobytes, fbMegabytes, fbGigabytes, fbTerabytes };

inline constexpr std::array<std::u16string_view, 5> CVetorFormatoBytes{u"Bytes", u"KB", u"MB", u"GB", u"TB"};

/// Generations of Windows. vwWinVista is every version of the NT 6 line; later ones are vwUnknown.
enum TVersaoWindows : int {
    vwUnknown,
    vwWin95,
    vwWin98,
    vwWin98SE,
    vwWinNT,
    vwWinME,
    vwWin2000,
    vwWinXP,
    vwWinVista,
};

inline constexpr std::array<std::u16string_view, 9> CVetorVersaoWindows{
    u"Desconhecida",  u"Windows 95", u"Windows 98",
    u"Windows 98 SE", u"Windows NT", u"Windows ME",
    u"Windows 2000",  u"Windows XP", u"Windows Vista/7 ou superior"};

/// Versions of the development environment whose installation is looked up.
enum TVersaoVelmar : int { VdVelmar6, VdVelmar7, VdVelmar2009, VdVelmarXE };

/// Where the development environment is installed; texts without a trailing separator of their own.
struct TInformacoesVelmar {
    std::u16string PastaInstalacao{};  ///< the installation's root
    std::u16string PastaBin{};         ///< root + "\" + "bin"
    std::u16string PastaLib{};         ///< root + "\" + "lib\win32\release"

    bool operator==(const TInformacoesVelmar&) const = default;
};

/// Numbers of code pages for TOryUtilsSistema::ExecutouComandoComRetorno; another one is the system's number (850).
/// (Linux) CPaginaAnsi and CPaginaOem are the code set of the locale.
inline constexpr std::uint32_t CPaginaAnsi = 0;
inline constexpr std::uint32_t CPaginaOem = 1;  // what most console programs of Windows write
inline constexpr std::uint32_t CPaginaUtf8 = 65001;

/// State of a service; the ordinals are the state numbers of the Service Control Manager.
enum TStatusServicoWindows : int {
    sswErro = 0,
    sswServicoParado = 1,
    sswServicoInicializacaoPendente = 2,
    sswServicoParadaPendente = 3,
    sswServicoRodando = 4,
    sswServicoContinuaPendente = 5,
    sswServicoPausaPendente = 6,
    sswServicoPausado = 7,
};

inline constexpr std::array<std::u16string_view, 8> CVetorStatusServicoWindows{
    u"Erro leitura serviço (pode indicar que não está instalado ou que está travado)",
    u"Serviço parado",
    u"Serviço com inicialização pendente",
    u"Serviço com parada pendente",
    u"Serviço rodando",
    u"Serviço continua pendente",
    u"Serviço com pausa pendente",
    u"Serviço pausado"};

enum TTipoProtocoloPortaComunicacao : int { tpUDP, tpTCP };

/// The protocols as the firewall commands name them.
inline constexpr std::array<std::u16string_view, 2> CVetorTipoProtocoloPortaComunicacao{u"UDP", u"TCP"};

/// Words by which the answer of a configuration command tells of a failure.
inline constexpr std::array<std::u16string_view, 6> CVetorListaErroConfiguracaoServico{u"falha", u"fail",   u"error",
                                                                                       u"erro",  u"negado", u"denied"};

/// The modifier keys of a key press.
enum TTeclaModificadora : int { ssShift, ssAlt, ssCtrl };

/// A set of modifier keys: TShiftState{ssCtrl, ssAlt}.
class TShiftState {
public:
    constexpr TShiftState() = default;
    constexpr TShiftState(std::initializer_list<TTeclaModificadora> ATeclas) {
        for (const TTeclaModificadora tecla : ATeclas) Incluir(tecla);
    }
    constexpr void Incluir(TTeclaModificadora ATecla) { FMembros |= BuscarBit(ATecla); }
    constexpr bool Contem(TTeclaModificadora ATecla) const { return (FMembros & BuscarBit(ATecla)) != 0; }
    constexpr bool operator==(const TShiftState&) const = default;

private:
    static constexpr std::uint32_t BuscarBit(TTeclaModificadora ATecla) {
        return ATecla >= ssShift && ATecla <= ssCtrl ? 1U << static_cast<unsigned>(ATecla) : 0U;
    }
    std::uint32_t FMembros = 0;
};

}  // namespace OryUtils
