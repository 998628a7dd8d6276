#include "oryutils/system/interno/RegrasDeDiscos.hpp"

#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

namespace OryUtils {
namespace {

std::u16string_view BuscarTextoDoFormato(TFormatoBytes AFormato) {
    const auto indice = static_cast<std::size_t>(AFormato);
    return indice < CVetorFormatoBytes.size() ? CVetorFormatoBytes[indice] : std::u16string_view();
}

}  // namespace

std::int64_t TOryUtilsSystemInfoDiscoRigidoIOP::GetEspacoUsado() const noexcept {
    // Whatever the caller has put there: the difference wraps.
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(EspacoTotal) - static_cast<std::uint64_t>(EspacoLivre));
}

std::u16string TOryUtilsSystemInfoDiscoRigidoIOP::GetInformacoesDetalhadas() const {
    const std::u16string_view formato = BuscarTextoDoFormato(FormatoBytes);
    return PreencherModelo(
        u"Informações detalhadas da unidade: \r\n\r\nUnidade: %s \r\nNome: %s \r\nEspaço total: %d %s\r\nEspaço livre: "
        u"%d %s\r\nEspaço usado: %d %s",
        {Unidade, NomeVolume, InteiroParaTexto(EspacoTotal), formato, InteiroParaTexto(EspacoLivre), formato,
         InteiroParaTexto(GetEspacoUsado()), formato});
}

OryTypes::TResultStatus Interno::ConferirEspacoLivre(const TOryUtilsSystemInfoDiscoRigidoIOP& ADisco,
                                                     std::int64_t ANecessario) {
    if (ADisco.EspacoLivre >= ANecessario) return {};
    return {false, PreencherModelo(u"A unidade << %s >> não possui espaço suficiente.\r\nEspaço requisitado: %d "
                                   u"%s.\r\n\r\n%s",
                                   {ADisco.Unidade, InteiroParaTexto(ANecessario),
                                    BuscarTextoDoFormato(ADisco.FormatoBytes), ADisco.GetInformacoesDetalhadas()})};
}

}  // namespace OryUtils
