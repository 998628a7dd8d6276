#include "oryutils/readers/RecursoDeVersaoPe.hpp"

#include "oryutils/readers/BytesDePe.hpp"

#include <algorithm>
#include <array>
#include <optional>

namespace OryUtils::Interno {
namespace {

// Places and sizes of the PE format.
constexpr std::size_t CCabecalhoDos = 64;
constexpr std::size_t CLugarDoCabecalhoPe = 0x3C;
constexpr std::uint16_t CMarcaDos = 0x5A4D;      // "MZ"
constexpr std::uint32_t CMarcaPe = 0x0000'4550;  // "PE", 0, 0
constexpr std::size_t CCabecalhoPe = 24;         // mark and file header
constexpr std::size_t CQuantidadeDeSecoes = 6;
constexpr std::size_t CTamanhoDoOpcional = 20;
constexpr std::uint16_t CMarca32 = 0x10B;
constexpr std::uint16_t CMarca64 = 0x20B;
constexpr std::size_t CTamanhoDosCabecalhos = 60;  // of the optional header, in both kinds
constexpr std::size_t CDiretorios32 = 96;
constexpr std::size_t CDiretorios64 = 112;
constexpr std::uint32_t CDiretorioDeRecursos = 2;
constexpr std::size_t CSecao = 40;
constexpr std::size_t CPastaDeRecursos = 16;
constexpr std::size_t CEntrada = 8;
constexpr std::size_t CDados = 16;
constexpr std::uint32_t CBitAlto = 0x8000'0000;  // of a name: it is a text; of a place: it is a folder

constexpr std::uint32_t CTipoVersao = 16;
constexpr std::uint32_t CNomeVersao = 1;
// Every length inside the resource has 16 bits, its own among them.
constexpr std::uint32_t CMaiorRecurso = 65536;

/// Tables are read so many entries at a time.
constexpr std::size_t CEntradasPorLeitura = 64;

class TLeitorPe {
public:
    explicit TLeitorPe(const TFonteDeBytes& AFonte) : FFonte(AFonte) {}

    std::vector<char> LerRecurso() {
        std::uint32_t lugar = 0;
        if (!LerCabecalhos() || !LocalizarRva(FRecursos, FRaiz)) return {};
        if (!AcharPasta(0, CTipoVersao, lugar) || !AcharPasta(lugar, CNomeVersao, lugar)) return {};
        if (!AcharIdioma(lugar, lugar)) return {};
        std::array<char, CDados> dados;
        std::uint64_t inicio = 0;
        if (!LerTudo(FRaiz + lugar, dados) || !LocalizarRva(LerPalavraDupla(dados, 0), inicio)) return {};
        std::vector<char> recurso(std::min(LerPalavraDupla(dados, 4), CMaiorRecurso));
        if (!LerTudo(inicio, recurso)) recurso.clear();
        return recurso;
    }

private:
    bool LerTudo(std::uint64_t AInicio, std::span<char> ADestino) const {
        return FFonte.Ler(AInicio, ADestino) == ADestino.size();
    }

    bool LerCabecalhos() {
        std::array<char, CCabecalhoDos> dos;
        if (!LerTudo(0, dos) || LerPalavra(dos, 0) != CMarcaDos) return false;
        const std::uint64_t inicio = LerPalavraDupla(dos, CLugarDoCabecalhoPe);
        std::array<char, CCabecalhoPe> pe;
        if (!LerTudo(inicio, pe) || LerPalavraDupla(pe, 0) != CMarcaPe) return false;
        const std::uint64_t opcional = inicio + CCabecalhoPe;
        const std::size_t tamanho = LerPalavra(pe, CTamanhoDoOpcional);
        FSecoes = opcional + tamanho;
        FQuantidadeDeSecoes = LerPalavra(pe, CQuantidadeDeSecoes);
        return LerOpcional(opcional, tamanho);
    }

    bool LerOpcional(std::uint64_t AInicio, std::size_t ATamanho) {
        std::array<char, CDiretorios64 + (CDiretorioDeRecursos + 1) * CEntrada> opcional{};
        ATamanho = FFonte.Ler(AInicio, std::span(opcional).first(std::min(ATamanho, opcional.size())));
        const std::uint16_t marca = LerPalavra(opcional, 0);
        if (marca != CMarca32 && marca != CMarca64) return false;
        const std::size_t diretorios = marca == CMarca32 ? CDiretorios32 : CDiretorios64;
        const std::size_t recursos = diretorios + CDiretorioDeRecursos * CEntrada;
        if (ATamanho < recursos + CEntrada) return false;
        if (LerPalavraDupla(opcional, diretorios - 4) <= CDiretorioDeRecursos) return false;
        FCabecalhos = LerPalavraDupla(opcional, CTamanhoDosCabecalhos);
        FRecursos = LerPalavraDupla(opcional, recursos);
        return FRecursos != 0;
    }

    /// Calls AVisitar for each of AQuantidade entries of ATamanho bytes until it answers true; false when none did, or
    /// the file ends first.
    template <std::size_t ATamanho, typename TVisitar>
    bool Percorrer(std::uint64_t AInicio, std::size_t AQuantidade, TVisitar AVisitar) const {
        std::array<char, ATamanho * CEntradasPorLeitura> bloco;
        for (std::size_t lidas = 0; lidas < AQuantidade;) {
            const std::size_t pedidas = std::min(AQuantidade - lidas, CEntradasPorLeitura);
            const std::span<char> pedido(bloco.data(), pedidas * ATamanho);
            const std::size_t vieram = FFonte.Ler(AInicio + lidas * ATamanho, pedido) / ATamanho;
            for (std::size_t i = 0; i < vieram; ++i)
                if (AVisitar(std::span<const char>(pedido).subspan(i * ATamanho, ATamanho))) return true;
            if (vieram < pedidas) return false;
            lidas += pedidas;
        }
        return false;
    }

    /// The place in the file of what the program sees at ARva.
    bool LocalizarRva(std::uint32_t ARva, std::uint64_t& ALugar) const {
        ALugar = ARva;
        if (ARva < FCabecalhos) return true;
        return Percorrer<CSecao>(FSecoes, FQuantidadeDeSecoes, [&](std::span<const char> ASecao) {
            const std::uint32_t virtualmente = LerPalavraDupla(ASecao, 12);
            const std::uint32_t tamanho = LerPalavraDupla(ASecao, 16);
            if (ARva < virtualmente || ARva - virtualmente >= tamanho) return false;
            ALugar = std::uint64_t{LerPalavraDupla(ASecao, 20)} + (ARva - virtualmente);
            return true;
        });
    }

    /// The first entry with a number of the folder APasta (a place behind the root of the resources) of which AServe
    /// says yes.
    template <typename TServe>
    bool AcharEntrada(std::uint32_t APasta, TServe AServe, std::uint32_t& ADestino) const {
        std::array<char, CPastaDeRecursos> pasta;
        if (!LerTudo(FRaiz + APasta, pasta)) return false;
        const std::size_t quantidade = std::size_t{LerPalavra(pasta, 12)} + LerPalavra(pasta, 14);
        return Percorrer<CEntrada>(FRaiz + APasta + CPastaDeRecursos, quantidade, [&](std::span<const char> AEntrada) {
            const std::uint32_t nome = LerPalavraDupla(AEntrada, 0);
            if ((nome & CBitAlto) != 0 || !AServe(nome)) return false;
            ADestino = LerPalavraDupla(AEntrada, 4);
            return true;
        });
    }

    bool AcharPasta(std::uint32_t APasta, std::uint32_t ANumero, std::uint32_t& ADestino) const {
        const auto serve = [&](std::uint32_t AEntrada) { return AEntrada == ANumero; };
        if (!AcharEntrada(APasta, serve, ADestino) || (ADestino & CBitAlto) == 0) return false;
        ADestino &= ~CBitAlto;
        return true;
    }

    /// What stands below a name are its languages: data, no folders. So nothing goes round in circles.
    bool AcharIdioma(std::uint32_t APasta, std::uint32_t& ADestino) const {
        constexpr std::array<std::uint32_t, 3> CPreferidos{0x0000, 0x0409, 0x0009};
        for (const std::uint32_t idioma : CPreferidos) {
            const auto serve = [&](std::uint32_t AEntrada) { return AEntrada == idioma; };
            if (AcharEntrada(APasta, serve, ADestino)) return (ADestino & CBitAlto) == 0;
        }
        const auto qualquer = [](std::uint32_t) { return true; };
        return AcharEntrada(APasta, qualquer, ADestino) && (ADestino & CBitAlto) == 0;
    }

    const TFonteDeBytes& FFonte;
    std::uint64_t FSecoes = 0;
    std::size_t FQuantidadeDeSecoes = 0;
    std::uint32_t FCabecalhos = 0;
    std::uint32_t FRecursos = 0;
    std::uint64_t FRaiz = 0;  // of the resources, in the file
};

}  // namespace

std::vector<char> LerRecursoDeVersaoPe(const TFonteDeBytes& AFonte) { return TLeitorPe(AFonte).LerRecurso(); }

}  // namespace OryUtils::Interno
