#include "oryutils/forms/console/SeletorConsole.hpp"

#include <filesystem>
#include <utility>

namespace OryUtils::Interno {
namespace {

namespace fs = std::filesystem;

// What empties an edit of a conversation, and cancels where a name is suggested.
constexpr std::u16string_view CNada = u"\"\"";

class TPerguntaDeCaminhos {
public:
    TPerguntaDeCaminhos(const TPedidoDeCaminho& APedido, const TPerguntaNoConsole& APerguntar)
        : FPedido(APedido), FPerguntar(APerguntar) {}

    std::vector<std::u16string> Executar() {
        const bool varios = FPedido.Selecao == scAbrirVarios;
        std::vector<std::u16string> caminhos;
        while (const auto caminho = PerguntarUm()) {
            caminhos.push_back(*caminho);
            if (!varios) break;
        }
        return caminhos;
    }

private:
    std::u16string MontarPergunta() const {
        constexpr std::u16string_view CTitulos[] = {u"Arquivo", u"Arquivos", u"Salvar como", u"Pasta"};
        std::u16string pergunta = FPedido.Titulo.empty() ? std::u16string(CTitulos[FPedido.Selecao]) : FPedido.Titulo;
        for (const TFiltroArquivo& filtro : FPedido.Filtros)
            pergunta += u", " + filtro.Descricao + u" " + filtro.Mascara;
        if (TemSugestao()) return pergunta + u" [" + FPedido.NomeSugerido + u"] (Enter aceita, \"\" cancela): ";
        return pergunta +
               (FPedido.Selecao == scAbrirVarios ? u" (um por linha, vazio termina): " : u" (vazio cancela): ");
    }
    bool TemSugestao() const { return FPedido.Selecao == scSalvar && !FPedido.NomeSugerido.empty(); }

    std::optional<std::u16string> PerguntarUm() {
        while (true) {
            auto resposta = FPerguntar(std::exchange(FRecusa, u"") + MontarPergunta());
            if (!resposta || *resposta == CNada) return std::nullopt;
            if (resposta->empty() && !TemSugestao()) return std::nullopt;
            std::error_code erro;
            fs::path caminho = fs::absolute(
                fs::path(FPedido.PastaInicial) / fs::path(resposta->empty() ? FPedido.NomeSugerido : *resposta), erro);
            if (FPedido.Selecao == scSalvar && !caminho.has_extension() && !FPedido.ExtensaoPadrao.empty())
                caminho += fs::path(u"." + FPedido.ExtensaoPadrao);
            if (!erro && (FPedido.Selecao == scSalvar ? PodeGravar(caminho) : Existe(caminho)))
                return caminho.lexically_normal().u16string();
        }
    }

    bool Existe(const fs::path& ACaminho) {
        std::error_code erro;
        const bool pasta = FPedido.Selecao == scPasta;
        if (pasta ? fs::is_directory(ACaminho, erro) : fs::is_regular_file(ACaminho, erro)) return true;
        FRecusa = pasta ? u"Pasta não encontrada.\n" : u"Arquivo não encontrado.\n";
        return false;
    }

    bool PodeGravar(const fs::path& ACaminho) {
        std::error_code erro;
        if (!fs::is_directory(ACaminho.parent_path(), erro)) {
            FRecusa = u"Pasta não encontrada.\n";
            return false;
        }
        if (!ACaminho.has_filename() || fs::is_directory(ACaminho, erro)) {
            FRecusa = u"É uma pasta; falta o nome do arquivo.\n";
            return false;
        }
        if (!fs::exists(ACaminho, erro)) return true;
        const auto resposta =
            FPerguntar(ACaminho.filename().u16string() + u" já existe. Deseja substituí-lo? (s/n) [n]: ");
        return resposta && (*resposta == u"s" || *resposta == u"S" || *resposta == u"sim" || *resposta == u"Sim");
    }

    const TPedidoDeCaminho& FPedido;
    const TPerguntaNoConsole& FPerguntar;
    std::u16string FRecusa;
};

}  // namespace

std::vector<std::u16string> PerguntarCaminhos(const TPedidoDeCaminho& APedido, const TPerguntaNoConsole& APerguntar) {
    return TPerguntaDeCaminhos(APedido, APerguntar).Executar();
}

}  // namespace OryUtils::Interno
