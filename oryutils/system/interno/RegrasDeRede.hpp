#pragma once

#include "oryutils/system/interno/Executor.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// The machine's own addresses in the lines of an "arp -a": of each line with a ":", the first word behind it.
std::vector<std::u16string> ListarEnderecosDaSaidaARP(const std::vector<std::u16string>& ALinhas);
/// The same of a text of several lines.
std::vector<std::u16string> ListarEnderecosDaSaidaARP(std::u16string_view ASaida);
std::vector<std::u16string> BuscarListaIPLocalViaARP(const TExecutorDeComando& AExecutor);

/// The first 17 characters from the first two characters followed by "-" on, trimmed, in upper case.
std::u16string ExtrairEnderecoMac(std::u16string_view ATexto);

/// "arp -a" for the address; when its answer is that the table has no entries (it starts with "N"), a ping that fills
/// the table and "arp -a" once more.
/// AOcupado  told true before the ping and false after the second "arp -a"
std::u16string BuscarEnderecoMacViaARP(const TExecutorDeComando& AExecutor, std::u16string_view AIP,
                                       const std::function<void(bool)>& AOcupado);

/// What the question for a MAC address asks around, in this order.
struct TFontesDeEnderecoMac {
    std::function<std::u16string()> IPLocal;
    std::function<std::u16string(std::u16string_view AIP)> Rede;  // one question to the network
    std::function<std::vector<std::u16string>(std::u16string_view AIP)> Adaptadores;
    std::function<std::vector<std::u16string>()> TodosOsAdaptadores;  // of this machine
    std::function<std::u16string(std::u16string_view AIP)> ARP;
};
std::u16string BuscarEnderecoMac(std::u16string_view AIP, const TFontesDeEnderecoMac& AFontes);

/// What the test for an address of this machine compares it with, in this order.
struct TFontesDeIPLocal {
    std::function<std::u16string()> NomeComputador;
    std::function<std::u16string()> IPLocal;
    std::function<std::vector<std::u16string>()> ListaViaARP;
};
bool EhIPLocal(std::u16string_view AIP, bool AConsultarARP, const TFontesDeIPLocal& AFontes);

}  // namespace OryUtils::Interno
