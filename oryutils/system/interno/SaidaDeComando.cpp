#include "oryutils/system/interno/SaidaDeComando.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/system/interno/Executor.hpp"

#include <algorithm>
#include <utility>

namespace OryUtils::Interno {
namespace {

// Calls AAcao with each line of ATexto, also with the empty one behind a last line break. CR LF, CR and LF end a line.
template <typename TAcao>
void PercorrerLinhas(std::u16string_view ATexto, TAcao AAcao) {
    const auto ehQuebra = [](char16_t ALetra) { return ALetra == u'\r' || ALetra == u'\n'; };
    while (true) {
        const auto quebra = std::find_if(ATexto.begin(), ATexto.end(), ehQuebra);
        const auto tamanho = static_cast<std::size_t>(quebra - ATexto.begin());
        AAcao(ATexto.substr(0, tamanho));
        if (quebra == ATexto.end()) return;
        ATexto.remove_prefix(tamanho);
        ATexto.remove_prefix(ATexto.starts_with(u"\r\n") ? 2 : 1);
    }
}

}  // namespace

void TSaidaDeComando::Receber(std::string_view ABytes) {
    if (!FResto.empty()) {
        const std::size_t falta = std::min(CTamanhoDaParte - FResto.size(), ABytes.size());
        FResto.append(ABytes.substr(0, falta));
        ABytes.remove_prefix(falta);
        if (FResto.size() == CTamanhoDaParte) FecharParte();
    }
    for (; ABytes.size() >= CTamanhoDaParte; ABytes.remove_prefix(CTamanhoDaParte))
        ReceberParte(ABytes.substr(0, CTamanhoDaParte));
    FResto.append(ABytes);
}

void TSaidaDeComando::FecharParte() {
    if (!FResto.empty()) ReceberParte(std::exchange(FResto, {}));
}

void TSaidaDeComando::ReceberParte(std::string_view ABytes) {
    const std::u16string decodificada = FDecodificador(ABytes.substr(0, ABytes.find('\0')));
    const std::u16string_view aparada = Aparar(decodificada);
    if (aparada.empty() && FTexto.empty()) ++FPartesVaziasNoComeco;
    bool primeira = true;
    PercorrerLinhas(aparada, [&](std::u16string_view ALinha) {
        if (!std::exchange(primeira, false)) FTexto += u"\r\n";
        FTexto += ALinha;
    });
}

std::u16string TSaidaDeComando::RetirarTexto() {
    FecharParte();
    FTexto.shrink_to_fit();
    return std::exchange(FTexto, {});
}

void TSaidaDeComando::ContinuarLista(std::vector<std::u16string>& ALinhas) {
    FecharParte();
    if (FTexto.empty() && FPartesVaziasNoComeco == 0) return;
    std::vector<std::u16string> linhas;
    linhas.reserve(ALinhas.size() + 1 + static_cast<std::size_t>(std::ranges::count(FTexto, u'\n')));
    const auto adicionar = [&](std::u16string_view ALinha) { linhas.emplace_back(ALinha); };
    if (!ALinhas.empty()) PercorrerLinhas(JuntarLinhas(ALinhas), adicionar);
    for (std::size_t i = 0; i < FPartesVaziasNoComeco && !linhas.empty() && linhas.back().empty(); ++i)
        linhas.pop_back();
    bool continua = !linhas.empty();
    if (!FTexto.empty())
        PercorrerLinhas(FTexto, [&](std::u16string_view ALinha) {
            if (std::exchange(continua, false))
                linhas.back() += ALinha;
            else
                adicionar(ALinha);
        });
    ALinhas = std::move(linhas);
}

std::vector<std::u16string> LinhasDaSaidaDeComando(std::string_view ABytes) {
    std::vector<std::u16string> linhas;
    TSaidaDeComando saida(DeUtf8);
    saida.Receber(ABytes);
    saida.ContinuarLista(linhas);
    return linhas;
}

}  // namespace OryUtils::Interno
