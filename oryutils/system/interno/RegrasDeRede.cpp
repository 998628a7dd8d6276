#include "oryutils/system/interno/RegrasDeRede.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/text/interno/Busca.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

constexpr std::u16string_view CComandoArp = u"arp -a";
constexpr std::u16string_view CIPDeVolta = u"127.0.0.1";
constexpr std::u16string_view CNomeDeVolta = u"localhost";
constexpr char16_t CInicioSemEntradas = u'N';
constexpr std::size_t CTamanhoDoMac = 17;

bool EhMetadeDePar(char16_t ACaractere) { return !EhBranco(ACaractere) && ACaractere != u'-'; }

/// Busy from here to the end of the block, however that is left.
class TOcupado {
public:
    explicit TOcupado(const std::function<void(bool)>& AAvisar) : FAvisar(AAvisar) { FAvisar(true); }
    ~TOcupado() { FAvisar(false); }
    TOcupado(const TOcupado&) = delete;
    TOcupado& operator=(const TOcupado&) = delete;

private:
    const std::function<void(bool)>& FAvisar;
};

// An address of zeros alone is what an adapter without one shows.
bool EhMacPreenchido(std::u16string_view AMac) {
    return std::any_of(AMac.begin(), AMac.end(), [](char16_t c) { return c != u'-' && c != u'0' && !EhBranco(c); });
}

}  // namespace

std::vector<std::u16string> ListarEnderecosDaSaidaARP(const std::vector<std::u16string>& ALinhas) {
    std::vector<std::u16string> enderecos;
    for (const std::u16string& inteira : ALinhas) {
        const std::u16string_view linha = Aparar(inteira);
        const std::size_t marca = linha.find(u':');
        if (marca == linha.npos) continue;
        const std::u16string_view resto = Aparar(linha.substr(marca + 1));
        const std::u16string_view endereco = Aparar(resto.substr(0, resto.find(u' ')));
        if (!endereco.empty()) enderecos.emplace_back(endereco);
    }
    return enderecos;
}

std::vector<std::u16string> ListarEnderecosDaSaidaARP(std::u16string_view ASaida) {
    std::vector<std::u16string> linhas;
    while (!ASaida.empty()) {
        const std::size_t fim = std::min(ASaida.find_first_of(u"\r\n"), ASaida.size());
        linhas.emplace_back(ASaida.substr(0, fim));
        ASaida.remove_prefix(std::min(fim + 1, ASaida.size()));
    }
    return ListarEnderecosDaSaidaARP(linhas);
}

std::vector<std::u16string> BuscarListaIPLocalViaARP(const TExecutorDeComando& AExecutor) {
    std::vector<std::u16string> linhas;
    AExecutor(CComandoArp, linhas);
    return ListarEnderecosDaSaidaARP(linhas);
}

std::u16string ExtrairEnderecoMac(std::u16string_view ATexto) {
    // A line break is blank, so no pair lies across two lines.
    for (std::size_t i = 0; i + 2 < ATexto.size(); ++i)
        if (ATexto[i + 2] == u'-' && EhMetadeDePar(ATexto[i]) && EhMetadeDePar(ATexto[i + 1]))
            return MaiusculaDe(Aparar(ATexto.substr(i, CTamanhoDoMac)));
    return {};
}

std::u16string BuscarEnderecoMacViaARP(const TExecutorDeComando& AExecutor, std::u16string_view AIP,
                                       const std::function<void(bool)>& AOcupado) {
    const std::u16string ip(AIP);
    const std::u16string consulta = std::u16string(CComandoArp) + u' ' + ip;
    std::u16string saida = BuscarTextoDoComando(AExecutor, consulta);
    if (saida.starts_with(CInicioSemEntradas)) {
        const TOcupado ocupado(AOcupado);
        BuscarTextoDoComando(AExecutor, u"ping " + ip + u" -i 1 -n 2");
        saida = BuscarTextoDoComando(AExecutor, consulta);
    }
    return ExtrairEnderecoMac(saida);
}

std::u16string BuscarEnderecoMac(std::u16string_view AIP, const TFontesDeEnderecoMac& AFontes) {
    const std::u16string ipLocal = AFontes.IPLocal();
    const bool local = AIP == CIPDeVolta || IguaisIgnorandoCaixa(AIP, CNomeDeVolta) || AIP == ipLocal;
    const std::u16string alvo = local ? ipLocal : std::u16string(AIP);
    std::u16string mac = AFontes.Rede(alvo);
    if (mac == AFontes.Rede(alvo)) return mac;
    std::vector<std::u16string> adaptadores = AFontes.Adaptadores(alvo);
    if (local && adaptadores.empty()) adaptadores = AFontes.TodosOsAdaptadores();
    if (!adaptadores.empty() && EhMacPreenchido(adaptadores.front())) mac = adaptadores.front();
    if (!local && Aparar(mac).empty()) mac = AFontes.ARP(AIP);
    return mac;
}

bool EhIPLocal(std::u16string_view AIP, bool AConsultarARP, const TFontesDeIPLocal& AFontes) {
    if (AIP == CIPDeVolta || IguaisIgnorandoCaixa(AIP, CNomeDeVolta) ||
        IguaisIgnorandoCaixa(AIP, AFontes.NomeComputador()) || AIP == AFontes.IPLocal())
        return true;
    if (!AConsultarARP) return false;
    return Interno::Localizar(JuntarLinhas(AFontes.ListaViaARP()), AIP, true) != Interno::CNaoEncontrado;
}

}  // namespace OryUtils::Interno
