#include "pesquisa/Dados.hpp"

#include "oryutils/runtime/Utf.hpp"

#include <fstream>

namespace Exemplos {

std::vector<TLinha> LerCsv(const std::filesystem::path& AArquivo) {
    std::ifstream arquivo(AArquivo, std::ios::binary);
    if (!arquivo) throw OryUtils::Exception(u"Não foi possível abrir " + AArquivo.u16string());
    std::vector<TLinha> linhas;
    std::string texto;
    std::getline(arquivo, texto);
    while (std::getline(arquivo, texto)) {
        if (texto.ends_with('\r')) texto.pop_back();
        std::vector<std::string> campos(1);
        bool entreAspas = false;
        for (const char c : texto)
            if (c == '"')
                entreAspas = !entreAspas;
            else if (c == ',' && !entreAspas)
                campos.emplace_back();
            else
                campos.back() += c;
        TLinha& linha = linhas.emplace_back();
        for (const std::string& campo : campos) linha.emplace_back(OryUtils::DeUtf8(campo));
    }
    return linhas;
}

std::vector<TLinha> LerMunicipios(const std::filesystem::path& APasta) { return LerCsv(APasta / "municipios.csv"); }

std::vector<TLinha> LerBancos(const std::filesystem::path& APasta) {
    constexpr std::u16string_view CFim = u" S.A.";
    std::vector<TLinha> bancos = LerCsv(APasta / "bancos.csv");
    for (TLinha& banco : bancos) {
        const std::u16string nome = banco.at(0).value();
        banco.push_back(nome.ends_with(CFim) ? TCelula(nome.substr(0, nome.size() - CFim.size())) : TCelula());
    }
    return bancos;
}

void CriarTabelas(TBanco& ABanco, const std::filesystem::path& APasta) {
    ABanco.Executar(u"CREATE TABLE MUNICIPIO (CODIGO INTEGER NOT NULL, NOME VARCHAR(60) NOT NULL, UF VARCHAR(2))");
    ABanco.Executar(u"CREATE TABLE BANCO (NOME VARCHAR(160) NOT NULL, CNPJ VARCHAR(18), APELIDO VARCHAR(160))");
    ABanco.ExecutarParaCada(u"INSERT INTO MUNICIPIO (CODIGO, NOME, UF) VALUES (?, ?, ?)", LerMunicipios(APasta));
    ABanco.ExecutarParaCada(u"INSERT INTO BANCO (NOME, CNPJ, APELIDO) VALUES (?, ?, ?)", LerBancos(APasta));
}

}  // namespace Exemplos
