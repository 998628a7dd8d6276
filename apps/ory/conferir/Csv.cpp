#include "conferir/Csv.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace Ory {

void RecusarRegistroLongo(std::uint64_t ALinha, const TLimites& ALimites) {
    throw EFalha("linha " + std::to_string(ALinha) + ": registro maior que o limite de " +
                 std::to_string(ALimites.Registro >> 20) + " MiB (faltam aspas de fechamento?)");
}

bool PularMarcaDeCodificacao(TBytesLidos& ABytes) {
    constexpr std::size_t CBloco = 4096;
    const bool utf8 = ABytes.PularMarcaUtf8();
    for (const std::string_view marca : {"\xFF\xFE", "\xFE\xFF"}) {
        while (ABytes.Get().size() < marca.size() && marca.starts_with(ABytes.Get()) && ABytes.LerMais(CBloco)) {
        }
        if (ABytes.Get().starts_with(marca)) throw EFalha("a entrada está em UTF-16; grave-a em UTF-8 ou Windows-1252");
    }
    return utf8;
}

char DetectarDelimitador(std::string_view AInicio, char AQuebra) noexcept {
    constexpr std::size_t CRegistros = 6;
    constexpr std::size_t CCandidatos = 4;
    // Where two would do alike: a comma stands in names and amounts, too.
    constexpr std::string_view CDelimitadores = ";\t|,";
    std::array<std::array<std::size_t, CCandidatos>, CRegistros> contados{};
    std::size_t inteiros = 0;
    bool entreAspas = false;
    for (const char c : AInicio) {
        if (c == '"') entreAspas = !entreAspas;
        if (entreAspas) continue;
        if (c == AQuebra && ++inteiros == CRegistros) break;
        const std::size_t candidato = CDelimitadores.find(c);
        if (candidato != CDelimitadores.npos) ++contados[inteiros][candidato];
    }
    std::size_t melhor = 0;
    std::pair<std::size_t, std::size_t> maior{};  // records that agree with the first, how often in the first
    for (std::size_t k = 0; k < CCandidatos; ++k) {
        std::size_t iguais = 0;
        for (std::size_t i = 1; i < inteiros; ++i) iguais += contados[i][k] == contados[0][k];
        if (contados[0][k] == 0 || std::pair(iguais, contados[0][k]) <= maior) continue;
        maior = {iguais, contados[0][k]};
        melhor = k;
    }
    return CDelimitadores[melhor];
}

TLeitorDeRegistros::TLeitorDeRegistros(TEntrada& AEntrada, char ADelimitador, std::size_t AMaximoDeCampos,
                                       TLimites ALimites)
    : FBytes(AEntrada), FDelimitador(ADelimitador), FMaximoDeCampos(AMaximoDeCampos), FLimites(ALimites) {
    FPossuiMarcaUtf8 = PularMarcaDeCodificacao(FBytes);
    LerBloco(FLimites.Bloco);
    DetectarQuebra();
    LerLinhaDoDelimitador();
    if (!FDelimitador) FDelimitador = DetectarDelimitador(FBytes.Get(), FQuebra);
}

// In a file of LFs a CR alone is data, so it takes as many bytes as a record may have to know that there is none.
void TLeitorDeRegistros::DetectarQuebra() {
    const auto tem = [&](char c) { return FBytes.Get().find(c) != std::string_view::npos; };
    while (!tem('\n') && !FBytes.EstahNoFim() && FBytes.Get().size() <= FLimites.Registro)
        LerBloco(std::max(FLimites.Bloco, FBytes.Get().size()));
    if (tem('\r') && !tem('\n')) FQuebra = '\r';
}

void TLeitorDeRegistros::LerLinhaDoDelimitador() {
    constexpr std::string_view CInicio = "sep=";
    const std::string_view bytes = FBytes.Get();
    const std::size_t fim = bytes.find_first_of("\r\n");
    if (!bytes.starts_with(CInicio) || fim != CInicio.size() + 1 || bytes[CInicio.size()] == '"') return;
    FLinhaDoDelimitador = bytes.substr(0, fim + (bytes.substr(fim).starts_with("\r\n") ? 2 : 1));
    if (!FDelimitador) FDelimitador = bytes[CInicio.size()];
    FBytes.Usar(FLinhaDoDelimitador.size());
    ++FLinha;
}

bool TLeitorDeRegistros::Proximo() {
    FLinha += FQuebras;
    while (!Dividir(FBytes.Get())) {
        if (FBytes.Get().size() > FLimites.Registro) break;
        LerBloco(std::max(FLimites.Bloco, FBytes.Get().size()));  // twice as much: a long record costs linear time
    }
    const std::size_t tamanho = FTexto.size() + FFimDeLinha.size();
    if (tamanho > FLimites.Registro) RecusarRegistroLongo(FLinha, FLimites);
    if (FFaltaAspa) throw EFalha("linha " + std::to_string(FLinha) + ": aspas abertas e nunca fechadas");
    FBytes.Usar(tamanho);
    return tamanho > 0;
}

/// Reads AQuantos bytes, fewer only at the end of the input.
void TLeitorDeRegistros::LerBloco(std::size_t AQuantos) {
    const std::uint64_t fim = FBytes.GetTotal() + AQuantos;
    while (FBytes.GetTotal() < fim && FBytes.LerMais(static_cast<std::size_t>(fim - FBytes.GetTotal()))) {
    }
}

/// Takes the record at the front of ABytes apart; false when more bytes may belong to it.
bool TLeitorDeRegistros::Dividir(std::string_view ABytes) {
    FCampos.clear();
    FDesdobrados.clear();
    FTotalDeCampos = 0;
    FQuebras = 0;
    FFaltaAspa = false;
    std::size_t i = 0;
    for (bool fim = ABytes.empty(); !fim; ++i) {
        std::string_view campo;
        const std::size_t inicio = i;
        if (i < ABytes.size() && ABytes[i] == '"') {
            i = LerCampoEntreAspas(ABytes, i, campo);
        } else {
            i = BuscarFimDoCampo(ABytes, i);
            campo = ABytes.substr(inicio, i - inicio);
        }
        fim = i == ABytes.size() || ABytes[i] == FQuebra;
        if (fim && i < ABytes.size() && campo.ends_with('\r') && ABytes[i - 1] == '\r') campo.remove_suffix(1);
        if (FTotalDeCampos++ < FMaximoDeCampos) FCampos.push_back(campo);
    }
    i = std::min(i, ABytes.size());
    const std::string_view registro = ABytes.substr(0, i);
    const std::size_t fimDeLinha = registro.ends_with("\r\n") ? 2 : registro.ends_with(FQuebra) ? 1 : 0;
    FTexto = registro.substr(0, i - fimDeLinha);
    FFimDeLinha = registro.substr(i - fimDeLinha);
    FQuebras += fimDeLinha > 0;
    return FBytes.EstahNoFim() || (fimDeLinha && !FFaltaAspa);
}

/// The value of the field that opens with the quote at AInicio goes to ACampo; gives the position of what ends it.
std::size_t TLeitorDeRegistros::LerCampoEntreAspas(std::string_view ABytes, std::size_t AInicio,
                                                   std::string_view& ACampo) {
    std::string valor;
    std::size_t i = AInicio + 1;
    while (true) {
        const std::size_t aspa = std::min(ABytes.find('"', i), ABytes.size());
        valor += ABytes.substr(i, aspa - i);
        i = aspa + 1;
        FFaltaAspa = aspa == ABytes.size();
        if (FFaltaAspa || i >= ABytes.size() || ABytes[i] != '"') break;
        valor += '"';
        ++i;
    }
    i = std::min(i, ABytes.size());
    FQuebras += static_cast<std::uint64_t>(std::ranges::count(ABytes.substr(AInicio, i - AInicio), FQuebra));
    const std::size_t fim = BuscarFimDoCampo(ABytes, i);
    valor += ABytes.substr(i, fim - i);
    ACampo = FDesdobrados.emplace_back(std::move(valor));
    return fim;
}

std::size_t TLeitorDeRegistros::BuscarFimDoCampo(std::string_view ABytes, std::size_t AInicio) const noexcept {
    while (AInicio < ABytes.size() && ABytes[AInicio] != FDelimitador && ABytes[AInicio] != FQuebra) ++AInicio;
    return AInicio;
}

void EscreverCampo(std::string& ASaida, std::string_view ACampo, char ADelimitador) {
    const auto pedeAspas = [&](char c) { return c == '"' || c == '\r' || c == '\n' || c == ADelimitador; };
    if (std::ranges::none_of(ACampo, pedeAspas)) {
        ASaida += ACampo;
        return;
    }
    ASaida += '"';
    for (const char c : ACampo) {
        if (c == '"') ASaida += '"';
        ASaida += c;
    }
    ASaida += '"';
}

}  // namespace Ory
