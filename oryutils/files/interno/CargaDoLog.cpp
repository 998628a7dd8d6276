#include "oryutils/files/interno/CargaDoLog.hpp"

#include "oryutils/files/interno/CodificacaoDoLog.hpp"
#include "oryutils/platform/Pastas.hpp"
#include "oryutils/platform/TextoDoSistema.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace OryUtils {

using namespace Interno;

TLogExistente AbrirLogExistente(TFluxo& AFluxo, std::u16string_view AArquivo) {
    const TErroFluxo erro = AFluxo.AbrirArquivoParaLer(AArquivo);
    if (erro == efNenhum) return leAberto;
    return erro == efNaoExiste || ExistePasta(AArquivo) ? leSemArquivo : leIlegivel;
}

std::optional<TLinhasCarregadas> LerLogExistente(TFluxo& AFluxo, TCodificacaoLog ACodificacao) {
    TSeparadorDeLinhas separador(AFluxo.BuscarTamanho().value_or(0));
    std::array<char, 65'536> parte;
    TErroFluxo erro = efNenhum;
    while (const std::size_t lidos = AFluxo.Ler(parte, erro)) separador.Acrescentar({parte.data(), lidos});
    if (erro != efNenhum) return {};
    return separador.Terminar(ACodificacao);
}

TSeparadorDeLinhas::TSeparadorDeLinhas(std::uint64_t ATamanho) {
    // The run's own lines follow, and the system's line break may be longer than that of the file.
    FLinhas.Bytes.reserve(static_cast<std::size_t>(ATamanho + ATamanho / 4));
}

void TSeparadorDeLinhas::Acrescentar(std::string_view AParte) {
    // No byte of a longer character of any ANSI code page, nor of UTF-8, is a CR or an LF.
    while (!AParte.empty()) {
        if (std::exchange(FDepoisDeCr, false) && AParte.front() == '\n') {
            AParte.remove_prefix(1);
            continue;
        }
        const std::size_t fim = std::min(AParte.find_first_of("\r\n"), AParte.size());
        FLinhas.Bytes += AParte.substr(0, fim);
        FAberta = FAberta || fim > 0;
        if (fim == AParte.size()) return;
        FDepoisDeCr = AParte[fim] == '\r';
        TerminarLinha();
        AParte.remove_prefix(fim + 1);
    }
}

void TSeparadorDeLinhas::TerminarLinha() {
    AcrescentarCodificado(FLinhas.Bytes, BuscarQuebraDeLinha(), clUtf8);  // ASCII in every encoding
    ++FLinhas.Quantidade;
    FAberta = false;
}

TLinhasCarregadas TSeparadorDeLinhas::Terminar(TCodificacaoLog ACodificacao) {
    constexpr std::string_view CMarcaUtf8 = "\xEF\xBB\xBF";
    std::u16string marca;
    AcrescentarDecodificado(marca, CMarcaUtf8, ACodificacao);
    if (FLinhas.Bytes.starts_with(CMarcaUtf8) && marca == u"\uFEFF") FLinhas.Bytes.erase(0, CMarcaUtf8.size());
    if (FAberta && !FLinhas.Bytes.empty()) TerminarLinha();
    return std::move(FLinhas);
}

}  // namespace OryUtils
