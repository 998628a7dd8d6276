#include "oryutils/files/interno/CargaDoLog.hpp"

#include "oryutils/files/interno/CodificacaoDoLog.hpp"
#include "oryutils/platform/Arquivos.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/platform/Pastas.hpp"

namespace OryUtils {

TCargaDoLog CarregarLinhas(std::u16string_view AArquivo, TLinhasDoLog& ALinhas) {
    Interno::TFluxo fluxo;
    const Interno::TErroFluxo erro = fluxo.AbrirArquivoParaLer(AArquivo);
    if (erro == Interno::efNaoExiste || Interno::ExistePasta(AArquivo)) return cgSemArquivo;
    const auto bytes = Interno::LerArquivo(AArquivo);
    if (!bytes) return cgIlegivel;
    for (const std::string_view linha : SepararLinhas(*bytes, ALinhas.GetCodificacao())) ALinhas.AdicionarBytes(linha);
    return cgLida;
}

}  // namespace OryUtils
