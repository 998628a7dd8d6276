#pragma once

#include "oryutils/platform/AlcaDeProcesso.hpp"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// What the system tells of a process; what it does not tell is empty.
struct TProcessoDoSistema {
    std::uint32_t ID = 0;
    std::u16string Nome{};  // file name of the executable
    std::u16string Usuario{};
    std::u16string Caminho{};
    TAlcaDeProcesso Alca{};
    std::uint64_t Memoria = 0;  // bytes
};

/// All processes whose user AQuer accepts.
std::vector<TProcessoDoSistema> ListarProcessos(const std::function<bool(std::u16string_view)>& AQuer);

struct TDonoDeProcesso {
    std::u16string Usuario{};
    std::u16string Dominio{};
};
TDonoDeProcesso BuscarDonoDoProcesso(std::uint32_t AID);
std::u16string BuscarCaminhoDoProcesso(std::uint32_t AID);
/// A handle of the first process for whose executable file name AQuer holds, with all rights; none without one.
TAlcaDeProcesso AbrirProcesso(const std::function<bool(std::u16string_view)>& AQuer);
/// Bytes in memory of the process of that handle; 0 when not told.
std::uint64_t BuscarMemoriaDoProcesso(const TAlcaDeProcesso& AAlca);

enum TFimDeProcesso : int { fpTerminado, fpNaoAberto, fpErro };
/// Ends a process at once. AErro: the system's text, for fpErro only. fpNaoAberto: there is none, or no right to end
/// it.
TFimDeProcesso TerminarProcesso(std::uint32_t AID, std::u16string& AErro);
/// Ends every process for whose executable file name AQuer holds, and tells how many those were. (Windows) The handles
/// stay open, which keeps the numbers of those processes from being given away again.
int TerminarProcessos(const std::function<bool(std::u16string_view)>& AQuer);

bool EhAdministrador();
/// True for a 32-bit program on a 64-bit system.
bool EhProcessoDe32BitsEmSistemaDe64();
void LiberarMemoria();
void AbrirConfiguracaoDeDataHora();

}  // namespace OryUtils::Interno
