#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/files/interno/OrdemDeVersoes.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

namespace OryUtils {

void TOryUtilsFiles::DividirVersao(std::u16string_view AVersao, std::uint16_t& AMaior, std::uint16_t& AMenor,
                                   std::uint16_t& ARelease, std::uint16_t& ABuild) {
    AMaior = AMenor = ARelease = ABuild = 0;
    AVersao = Aparar(AVersao);
    for (std::uint16_t* parte : {&AMaior, &AMenor, &ARelease}) {
        const std::size_t ponto = AVersao.find(u'.');
        if (ponto == AVersao.npos) break;
        *parte = static_cast<std::uint16_t>(TextoParaInt(AVersao.substr(0, ponto)));
        AVersao.remove_prefix(ponto + 1);
    }
    if (!AVersao.empty()) ABuild = static_cast<std::uint16_t>(TextoParaInt(AVersao));
}

TFileStatus TOryUtilsFiles::CompararVersao(std::u16string_view AVersao1, std::u16string_view AVersao2) {
    const Interno::TChaveDeVersao chave1 = Interno::BuscarChaveDeVersao(AVersao1);
    const Interno::TChaveDeVersao chave2 = Interno::BuscarChaveDeVersao(AVersao2);
    return chave1 > chave2 ? fsMajor : chave1 < chave2 ? fsMinor : fsEqual;
}

std::u16string TOryUtilsFiles::FormatarVersaoArquivo(std::u16string_view AVersao,
                                                     TTipoDivisaoVersaoArquivo ATipoDivisao) {
    std::size_t fim = 0;
    int pontos = 0;
    while (fim < AVersao.size() && (pontos += AVersao[fim] == u'.') < ATipoDivisao) ++fim;
    return std::u16string(AVersao.substr(0, fim));
}

void TOryUtilsFiles::OrdenarListaDeVersoes(std::vector<std::u16string>& AListaVersoes) {
    Interno::OrdenarVersoes(AListaVersoes);
}

}  // namespace OryUtils
