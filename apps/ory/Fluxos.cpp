#include "Fluxos.hpp"

#include <filesystem>

namespace Ory {

using namespace OryUtils::Interno;

std::string_view DescreverErro(TErroFluxo AErro) {
    switch (AErro) {
        case efNaoExiste:
            return "o arquivo não existe";
        case efJaExiste:
            return "o arquivo já existe";
        case efSemPermissao:
            return "acesso negado";
        case efEhPasta:
            return "é uma pasta";
        case efDiscoCheio:
            return "o disco está cheio";
        case efFechado:
            return "a outra ponta foi fechada";
        case efNomeComprido:
            return "o nome do arquivo é comprido demais";
        default:
            return "erro de entrada ou saída";
    }
}

std::string_view DescreverErro(TErroFluxo AErro, const std::string& ANome) {
    const std::filesystem::path pasta = std::filesystem::path(std::u8string(ANome.begin(), ANome.end())).parent_path();
    std::error_code erro;
    if (AErro == efNaoExiste && !pasta.empty() && !std::filesystem::exists(pasta, erro)) return "a pasta não existe";
    return DescreverErro(AErro);
}

std::size_t TEntradaDeFluxo::Ler(std::span<char> ADestino) {
    TErroFluxo erro = efNenhum;
    const std::size_t lidos = FFluxo.Ler(ADestino, erro);
    if (erro != efNenhum) throw EFalha("não foi possível ler " + FNome + ": " + std::string(DescreverErro(erro)));
    return lidos;
}

void TSaidaDeFluxo::Escrever(std::string_view ABytes) {
    const TErroFluxo erro = FFluxo.Escrever(ABytes);
    if (erro == efFechado) throw ESaidaFechada();
    if (erro != efNenhum) throw EFalha("não foi possível gravar " + FNome + ": " + std::string(DescreverErro(erro)));
}

}  // namespace Ory
