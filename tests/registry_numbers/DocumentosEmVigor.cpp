// The kinds of documents in force: published examples, generated numbers, real codes, what they tell.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/OryUtilsDocumentos.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include "Frame.hpp"
#include "comum/Acaso.hpp"
#include "comum/MensagemDe.hpp"

#include <fstream>

namespace OryUtils {
namespace {

using D = TOryUtilsDocumentos;

struct TCasoDocumento {
    const char *Tipo, *Numero;
    const char* Escrito;  // in its mask; "=" as it came; "" for an invalid one
    TMotivoRecusa Motivo = mrNenhum;
    const char* Contexto = "";
};

// clang-format off
const TCasoDocumento CCasos[] = {
    {"cpf", "224.819.657-10", "="}, {"cpf", "44689387818", "446.893.878-18"}, {"cpf", " 378 137 212 09", "378.137.212-09"},
    {"cpf", "224.819.657-11", "", mrDigito}, {"cpf", "111.111.111-11", "", mrRepetido}, {"cpf", "", "", mrVazio},
    {"cpf", " \t", "", mrVazio}, {"cpf", "224.819.657-1", "", mrTamanho}, {"cpf", "224_819.657-10", "", mrCaractere},
    {"cpf", "２24.819.657-10", "", mrCaractere}, {"cpf", "ß24.819.657-10", "", mrCaractere},
    {"cnpj", "06.909.825/0002-90", "="}, {"cnpj", "SR.OYY.MZH/SLRE-28", "="}, {"cnpj", "12abc34501de35", "12.ABC.345/01DE-35"},
    {"cnpj", "12ABC34501DE3A", "", mrCaractere}, {"cnpj", "00000000000000", "", mrRepetido},
    {"cpf_cnpj", "562.577.992-95", "="}, {"cpf_cnpj", "RW.VAI.UZU/LSZY-32", "="}, {"cpf_cnpj", "08789211502", "087.892.115-02"},
    {"cpf_cnpj", "00056257799295", "", mrDigito}, {"cpf_cnpj", "5625779929", "", mrTamanho},
    {"pis", "994.83859.64-7", "="}, {"pis", "05512509396", "055.12509.39-6"}, {"pis", "994.83859.64-8", "", mrDigito},
    {"pis", "00000000000", "", mrRepetido},
    {"cei", "11.530.61451/86", "="}, {"cei", "784067933726", "78.406.79337/26"}, {"cei", "12.001.26952/12", "="},
    {"cei", "11.530.61451/87", "", mrDigito}, {"cei", "000000000000", "", mrRepetido},
    {"cno", "21.107.92582/47", "="}, {"cno", "133170334595", "13.317.03345/95"}, {"cno", "83.902.85782/52", "="},
    {"cno", "211079258274", "", mrDigito},
    {"caepf", "521.656.711/002-52", "="}, {"caepf", "34632397700224", "346.323.977/002-24"}, {"caepf", "694.575.683/601-92", "="},
    {"caepf", "521.656.711/002-40", "", mrDigito}, {"caepf", "521.656.711/002", "", mrTamanho},
    {"cnh", "75257274320", "="}, {"cnh", "00531449495", "="}, {"cnh", "07253320452", "="}, {"cnh", "75257274321", "", mrDigito},
    {"cnh", "752572743", "", mrTamanho},
    {"renavam", "97641219477", "="}, {"renavam", "565993453", "="}, {"renavam", "00962368474", "="},
    {"renavam", "97641219478", "", mrDigito}, {"renavam", "9764121947", "", mrTamanho},
    {"placa", "HSQ-0141", "="}, {"placa", "sfc0m53", "SFC0M53"}, {"placa", "KAD 5U77", "KAD5U77"},
    {"placa", "KAD55U7", "", mrForma}, {"placa", "KA5U777", "", mrForma}, {"placa", "KAD5U7", "", mrTamanho},
    {"titulo_eleitor", "3948 6042 0108", "="}, {"titulo_eleitor", "882840140329", "8828 4014 0329"},
    {"titulo_eleitor", "1611 9164 1198", "="}, {"titulo_eleitor", "3948 6042 0109", "", mrDigito},
    {"titulo_eleitor", "394860422908", "", mrPrefixo},
    {"cns", "748 2321 0258 0722", "="}, {"cns", "896071848916987", "896 0718 4891 6987"}, {"cns", "134 8704 3475 0003", "="},
    {"cns", "748232102580723", "", mrDigito}, {"cns", "348704347500031", "", mrPrefixo},
    {"ie", "01.264.864/814-50", "=", mrNenhum, "AC"}, {"ie", "9682850-51", "=", mrNenhum, "ba"},
    {"ie", "0791043065188", "07910430651-88", mrNenhum, "DF"}, {"ie", "062.307.904/0081", "=", mrNenhum, "MG"},
    {"ie", "505640988", "50.564.098-8", mrNenhum, "MS"}, {"ie", "77.918.780-6", "=", mrNenhum, "PA"},
    {"ie", "20.5.927.498-2", "=", mrNenhum, "RN"}, {"ie", "101.62521-3", "=", mrNenhum, "RO"},
    {"ie", "P-01100424.3/002", "=", mrNenhum, "SP"}, {"ie", "p011004243002", "P-01100424.3/002", mrNenhum, " sp "},
    {"ie", " Isento", "=", mrNenhum, "SC"}, {"ie", "ISENTA", "=", mrNenhum, "RJ"}, {"ie", "ISENTOS", "", mrTamanho, "SC"},
    {"ie", "I.SENTO", "", mrCaractere, "SC"}, {"ie", "612345748", "", mrDigito, "BA"}, {"ie", "0130000019", "", mrTamanho, "MT"},
    {"ie", "000000000", "", mrRepetido, "AM"}, {"ie", "505640988", "", mrContexto, ""}, {"ie", "505640988", "", mrUf, "EX"},
    {"ie", "isento", "", mrUf, "XX"}, {"ie", "P011004243002", "", mrTamanho, "RJ"},
    {"municipio", "3550308", "="}, {"municipio", "2201919", "="}, {"municipio", "2989168", "="}, {"municipio", "3550307", "", mrDigito},
    {"municipio", "3650300", "", mrPrefixo}, {"municipio", "2201917", "", mrDigito},
    {"cep", "01310-100", "=", mrNenhum, "SP"}, {"cep", "65999535", "65999-535", mrNenhum, "ma"}, {"cep", "58999-776", "="},
    {"cep", "01310-100", "", mrForaDoContexto, "RJ"}, {"cep", "00999-999", "", mrPrefixo}, {"cep", "01310-100", "", mrUf, "Rio"},
    {"telefone", "+55 (11) 98765-4321", "(11) 98765-4321"}, {"telefone", "4658961061", "(46) 5896-1061"},
    {"telefone", "0800 123 4567", "="}, {"telefone", "40041234", "4004-1234"}, {"telefone", "5511987654321", "(11) 98765-4321"},
    {"telefone", "(10) 98765-4321", "", mrPrefixo}, {"telefone", "98765-4321", "", mrTamanho}, {"telefone", "+1 212 555 0100", "", mrPrefixo},
    {"telefone", "+55 0800 123 4567", "", mrPrefixo}, {"telefone", "11 9+8765-4321", "", mrCaractere},
    {"email", " fulano.de-tal+1@exemplo.com.br ", "="}, {"email", "O'Brien@EXEMPLO.COM", "="}, {"email", "a@xn--so-yia.com.br", "="},
    {"email", "a..b@exemplo.com", "", mrForma}, {"email", "a@localhost", "", mrForma}, {"email", "joão@exemplo.com", "", mrCaractere},
    {"email", "a@b@c.com", "", mrForma}, {"email", "a b@c.com", "", mrCaractere}, {"email", "a@-b.com", "", mrForma}, {"email", "a@b.c", "", mrForma},
    {"boleto", "10491000000000000001048741987040963685948461", "="},
    {"boleto", "23791.77773 29293.085360 99248.895056 4 00000005145186", "="},
    {"boleto", "34191511095949144684137774366332500000004893952", "34191.51109 59491.446841 37774.366332 5 00000004893952"},
    {"boleto", "23791.77773 29293.085360 99248.895056 4 00000005145187", "", mrDigito},
    {"boleto", "3419151109594914468413777436633250000000489395", "", mrTamanho},
    {"arrecadacao", "87980000072550198704724319561905711709372310", "="},
    {"arrecadacao", "85790000033-5 43936285432-5 79576968109-4 01584371194-4", "="},
    {"arrecadacao", "817000000023357439786579420681609814941014231190", "81700000002-3 35743978657-9 42068160981-4 94101423119-0"},
    {"arrecadacao", "85790000033-5 43936285432-5 79576968109-4 01584371194-5", "", mrDigito},
    {"arrecadacao", "97980000072550198704724319561905711709372310", "", mrPrefixo},
    {"pix", "158ca798-2dfc-477c-b79c-c0f497123d8e", "="}, {"pix", "+5511987654321", "="}, {"pix", "79159884762", "="},
    {"pix", "a@b.com", "="}, {"pix", "11987654321", "", mrDigito}, {"pix", "158ca7982dfc477cb79cc0f497123d8e", "", mrTamanho},
    {"pix", "+551146589610", "", mrPrefixo},
    {"pix_copia_e_cola", "00020126580014br.gov.bcb.pix0136123e4567-e12b-12d1-a456-4266554400005204000053039865802BR5913Fulano de Tal6008BRASILIA62070503***63041D3D", "="},
    {"pix_copia_e_cola", "00020101021126360014br.gov.bcb.pix0114YGXPXAZCBTIU32520458125303986540856889.295802BR5913Fulano de Tal6014Belo Horizonte62290525A1b2C3d4E5f6G7h8I9j0K1l2M63040966", "="},
    {"pix_copia_e_cola", "00020101021226480014br.gov.bcb.pix0111608309086500211mensalidade5204000053039865802BR5920EMPRESA EXEMPLO LTDA6009SAO PAULO62140510TX0874179463045F1D", "="},
    {"pix_copia_e_cola", "00020126580014br.gov.bcb.pix0136123e4567-e12b-12d1-a456-4266554400005204000053039865802BR5913Fulano de Tal6008BRASILIA62070503***63041D3E", "", mrDigito},
    {"pix_copia_e_cola", "0002016304", "", mrForma}, {"pix_copia_e_cola", "0002", "", mrForma},
    {"gtin", "2536339615076", "="}, {"gtin", "522539479879", "="}, {"gtin", "9693437623860", "="}, {"gtin", "2536339615077", "", mrDigito},
    {"gtin", "25363396150", "", mrTamanho}, {"gtin", "00000000", "", mrRepetido},
    {"ncm", "2540.20.68", "="}, {"ncm", "55566116", "5556.61.16"}, {"ncm", "1693.54.15", "="}, {"ncm", "7701.00.00", "", mrPrefixo},
    {"ncm", "2540.20", "", mrTamanho},
    {"cfop", "5.102", "="}, {"cfop", "6414", "6.414"}, {"cfop", "7.937", "="}, {"cfop", "4.102", "", mrPrefixo}, {"cfop", "5.100", "", mrPrefixo},
    {"cfop", "3.402", "", mrPrefixo}, {"cfop", "5.150", "", mrPrefixo},
    {"cest", "09.615.00", "="}, {"cest", "0634795", "06.347.95"}, {"cest", "23.512.00", "="}, {"cest", "29.001.00", "", mrPrefixo},
    {"cest", "09.000.00", "", mrPrefixo},
    {"cnae", "6201-5/01", "="}, {"cnae", "7437489", "7437-4/89"}, {"cnae", "03728/38", "0372-8/38"}, {"cnae", "0401-1/00", "", mrPrefixo},
    {"cnae", "6201-5", "", mrTamanho},
    {"processo", "9698080-83.2018.7.07.6820", "="}, {"processo", "35139845520225228627", "3513984-55.2022.5.22.8627"},
    {"processo", "6089667-17.2012.6.16.3138", "="}, {"processo", "9698080-84.2018.7.07.6820", "", mrDigito},
    {"processo", "96980808320180076820", "", mrPrefixo},
    {"iban", "BR18 0036 0305 0000 1000 9795 493C 1", "="}, {"iban", "br0922428606988610070385569p1", "BR09 2242 8606 9886 1007 0385 569P 1"},
    {"iban", "BR6036891154492456406400649SA", "BR60 3689 1154 4924 5640 6400 649S A"},
    {"iban", "BR1900360305000010009795493C1", "", mrDigito}, {"iban", "DE89370400440532013000", "", mrTamanho},
    {"cartao", "4561 1296 5737 0516", "="}, {"cartao", "351736303788990", "="}, {"cartao", "6982034981809484", "6982 0349 8180 9484"},
    {"cartao", "4561129657370517", "", mrDigito}, {"cartao", "4561129657", "", mrTamanho}, {"cartao", "0000000000000000", "", mrRepetido},
    {"chave_dfe", "3526050X0J92JY000196570010000006041448679011", "3526 050X 0J92 JY00 0196 5700 1000 0006 0414 4867 9011"},
    {"chave_dfe", "14130161183011000149570023340652481647583445", "1413 0161 1830 1100 0149 5700 2334 0652 4816 4758 3445"},
    {"chave_dfe", "3516 05g4 5u36 1045 2713 5500 1295 7375 7513 4878 9941", "3516 05G4 5U36 1045 2713 5500 1295 7375 7513 4878 9941"},
    {"chave_dfe", "3526050X0J92JY000196570010000006041448679012", "", mrDigito},
    {"chave_dfe", "14131361183011000149570023340652481647583445", "", mrData},
};
// clang-format on

TEST(DocumentosEmVigor, ExemplosPublicados) {
    for (const TCasoDocumento& c : CCasos) {
        SCOPED_TRACE(std::string(c.Tipo) + " " + c.Numero + " " + c.Contexto);
        const std::u16string tipo = DeUtf8(c.Tipo), numero = DeUtf8(c.Numero), contexto = DeUtf8(c.Contexto);
        EXPECT_EQ(D::BuscarMotivoRecusa(tipo, numero, contexto), c.Motivo);
        EXPECT_EQ(D::ValidouDocumento(tipo, numero, contexto), c.Motivo == mrNenhum);
        const bool igual = c.Motivo != mrNenhum || std::string_view(c.Escrito) == "=";
        EXPECT_EQ(ParaUtf8(D::FormatarDocumento(tipo, numero, contexto)), igual ? c.Numero : c.Escrito);
        EXPECT_EQ(D::BuscarTextoMotivoRecusa(tipo, numero, contexto).empty(), c.Motivo == mrNenhum);
    }
}

// A made-up number is valid, and what is stored comes back from its mask.
TEST(DocumentosEmVigor, NumerosGerados) {
    constexpr std::u16string_view CUnidades = u"ACALAMAPBACEDFESGOMAMGMSMTPAPBPEPIPRRJRNRORRRSSCSESPTO";
    constexpr std::int64_t CVezes = 10'000;
    for (const std::u16string& tipo : D::BuscarTiposDocumento()) {
        const bool porUf = D::BuscarDescricaoDocumento(tipo).Contexto == u"UF";
        for (std::size_t uf = 0; uf < (porUf ? CUnidades.size() : 2); uf += 2) {
            const std::u16string contexto(porUf ? CUnidades.substr(uf, 2) : u"");
            for (std::int64_t semente = 0; semente < CVezes && !HasFailure(); ++semente) {
                const std::u16string numero = D::GerarDocumento(tipo, semente, contexto);
                const std::u16string escrito = D::FormatarDocumento(tipo, numero, contexto);
                SCOPED_TRACE(ParaUtf8(tipo + u" " + contexto + u" " + numero + u" " + escrito));
                ASSERT_TRUE(D::ValidouDocumento(tipo, numero, contexto));
                ASSERT_TRUE(D::ValidouDocumento(tipo, escrito, contexto));
                ASSERT_EQ(D::LimparDocumento(tipo, escrito, contexto), numero);
            }
        }
    }
    EXPECT_EQ(D::GerarDocumento(u"cpf", 7), D::GerarDocumento(u"cpf", 7));
    EXPECT_NE(D::GerarDocumento(u"cpf", 7), D::GerarDocumento(u"cpf", 8));
    EXPECT_EQ(D::GerarDocumento(u"ie", 7, u""), u"");
}

// Where each value of a sum has a digit of its own. By modulus 11 two of them share the 0.
TEST(DocumentosEmVigor, UmDigitoTrocadoEhNotado) {
    Testes::TAcaso acaso;
    for (const std::u16string_view tipo : {u"gtin", u"processo", u"iban", u"cartao"}) {
        int notados = 0;
        for (std::int64_t semente = 0; semente < 2000; ++semente) {
            std::u16string numero = D::GerarDocumento(tipo, semente);
            const std::size_t lugar = acaso() % numero.size();
            if (numero[lugar] > u'9') numero[lugar] = u'0';
            numero[lugar] = static_cast<char16_t>(u'0' + (numero[lugar] - u'0' + 1 + acaso() % 9) % 10);
            notados += !D::ValidouDocumento(tipo, numero);
        }
        EXPECT_EQ(notados, 2000) << ParaUtf8(std::u16string(tipo));
    }
}

std::vector<std::u16string> LerColuna(const char* AArquivo, std::size_t AColuna) {
    std::ifstream arquivo(std::string(ORY_PASTA_DO_PROJETO "/examples/") + AArquivo);
    std::vector<std::u16string> valores;
    std::string linha;
    for (std::getline(arquivo, linha); std::getline(arquivo, linha);) {
        const std::size_t virgula = AColuna == 0 ? linha.find(',') : linha.rfind(',');
        valores.push_back(DeUtf8(AColuna == 0 ? linha.substr(0, virgula) : linha.substr(virgula + 1)));
    }
    return valores;
}

TEST(DocumentosEmVigor, BancosEMunicipiosDeVerdade) {
    for (const auto& [arquivo, coluna, tipo, quantos] :
         {std::tuple("bancos.csv", 1u, u"cnpj", 511u), std::tuple("municipios.csv", 0u, u"municipio", 5571u)}) {
        const auto numeros = LerColuna(arquivo, coluna);
        EXPECT_EQ(numeros.size(), quantos);
        for (const std::u16string& numero : numeros) EXPECT_TRUE(D::ValidouDocumento(tipo, numero)) << ParaUtf8(numero);
    }
}

struct TCasoFatos {
    const char *Tipo, *Numero, *Fatos;
};
const TCasoFatos CFatos[] = {
    {"chave_dfe", "3526050X0J92JY000196570010000006041448679011",
     "UF: SP; Mês: 05/2026; Emitente: 0X.0J9.2JY/0001-96; Modelo: 57 (CT-e); Série: 1; Número: 604; "},
    {"boleto", "23791.77773 29293.085360 99248.895056 4 00000005145186", "Banco: 237; Valor: 51.451,86; "},
    {"arrecadacao", "817000000023357439786579420681609814941014231190",
     "Segmento: 1 (prefeituras); Quantidade de referência: 23574; "},
    {"pix_copia_e_cola",
     "00020101021226480014br.gov.bcb.pix0111608309086500211mensalidade5204000053039865802BR5920EMPRESA EXEMPLO "
     "LTDA6009SAO PAULO62140510TX0874179463045F1D",
     "Chave: 60830908650; Recebedor: EMPRESA EXEMPLO LTDA; Cidade: SAO PAULO; Identificador: TX08741794; "},
    {"processo", "6089667-17.2012.6.16.3138",
     "Ano: 2012; Justiça: 6 (Justiça Eleitoral); Tribunal: 16; Origem: 3138; "},
    {"iban", "BR1800360305000010009795493C1",
     "Banco (ISPB): 00360305; Agência: 00001; Conta: 0009795493; Tipo da conta: C; Titular: 1; "},
    {"cep", "01310-100", "UF: SP; "},
    {"telefone", "+5511987654321", "Área: 11; Tipo: celular; "},
    {"cpf", "224.819.657-10", ""},
    {"cep", "00999-999", ""},
};

TEST(DocumentosEmVigor, OQueDizem) {
    for (const TCasoFatos& c : CFatos) {
        std::string fatos;
        for (const TFatoDocumento& fato : D::InterpretarDocumento(DeUtf8(c.Tipo), DeUtf8(c.Numero)))
            fatos += ParaUtf8(fato.Nome + u": " + fato.Texto) + "; ";
        EXPECT_EQ(fatos, c.Fatos) << c.Numero;
    }
}

struct TFrameDeDocumentos : Frame {};

TEST_F(TFrameDeDocumentos, RelatamNoControle) {
    const auto validar = [&](TObjeto* ASender, std::u16string_view ANumero) {
        return Relato([&] { D::ValidarNumeroDocumento(ASender, &Controle, u"cnpj", ANumero); });
    };
    EXPECT_EQ(validar(nullptr, u"12.ABC.345/01DE-36"), "O CNPJ tem o dígito verificador errado.");
    EXPECT_EQ(validar(&Controle, u"12.ABC.345/01DE"), "O CNPJ deve ter 12 letras ou dígitos e 2 dígitos.");
    EXPECT_EQ(validar(&Outro, u"12.ABC.345/01DE-36"), "nada") << "not this control's turn";
    EXPECT_EQ(validar(nullptr, u" "), "nada");
    EXPECT_TRUE(D::ValidarNumeroDocumento(nullptr, &Controle, u"cnpj", u"12.ABC.345/01DE-35"));
}

// The page of the kinds is written from the table.
TEST(DocumentosEmVigor, APaginaDizATabela) {
    std::string tabela =
        "| Tipo | Documento | Forma | Contexto | Regra | Fonte | Exemplo |\n|---|---|---|---|---|---|---|\n";
    for (const std::u16string& tipo : D::BuscarTiposDocumento()) {
        const TDescricaoDocumento d = D::BuscarDescricaoDocumento(tipo);
        tabela += ParaUtf8(u"| `" + d.Nome + u"` | " + d.Titulo + u" | " + d.Forma + u" | " + d.Contexto + u" | " +
                           d.Regra + u" | " + d.Fonte + u" | `" + d.Mascara + u"` |\n");
    }
    std::ifstream pagina(ORY_PASTA_DO_PROJETO "/docs/documentos.md", std::ios::binary);
    const std::string texto{std::istreambuf_iterator<char>(pagina), {}};
    EXPECT_NE(texto.find(tabela), std::string::npos) << "docs/documentos.md needs this table:\n" << tabela;
}

TEST(DocumentosEmVigor, FrasesENomes) {
    const auto frase = [](auto... AArgumentos) { return ParaUtf8(D::BuscarTextoMotivoRecusa(AArgumentos...)); };
    EXPECT_EQ(frase(u"cpf", u"123"), "O CPF deve ter 11 dígitos.");
    EXPECT_EQ(frase(u"placa", u""), "Informe a placa.");
    EXPECT_EQ(frase(u"ie", u"505640988", u""), "Falta informar a UF da inscrição estadual.");
    EXPECT_EQ(frase(u"cnpj", u"06.909.825/0002-91"), "O CNPJ tem o dígito verificador errado.");
    const std::string erro = Testes::MensagemDe<Exception>([] { D::ValidouDocumento(u"rg", u"1"); });
    EXPECT_TRUE(erro.starts_with("Não existe o tipo de documento \"rg\". Os tipos são: cpf, cnpj, cpf_cnpj, ie"))
        << erro;
    EXPECT_EQ(D::BuscarTiposDocumento().size(), 30u);
    EXPECT_FALSE(D::ValidouDocumento(u"cpf", std::u16string(10'000, u'1')));
    EXPECT_TRUE(D::ValidouDocumento(u"cpf", u"22481965710" + std::u16string(10'000, u' ')));
}

}  // namespace
}  // namespace OryUtils
