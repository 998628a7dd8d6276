// Compares verdicts on documents with those of independent libraries: node documentos.mjs ORY [NUMBERS].
// For each kind that they know, and each state, NUMBERS (20000) are made up, half of them with one character changed.
// Every difference has its reason below; one that has none makes the run fail.
import { spawnSync } from "node:child_process";
import * as utils from "@brazilian-utils/brazilian-utils";
import inscricaoEstadual from "inscricaoestadual";

const [, , ory, quantos = "20000"] = process.argv;
const UFS = "AC AL AM AP BA CE DF ES GO MA MG MS MT PA PB PE PI PR RJ RN RO RR RS SC SE SP TO".split(" ");

const pares = {
  cpf: utils.isValidCpf,
  cnpj: utils.isValidCnpj,
  pis: utils.isValidPis,
  cei: utils.isValidCei,
  cno: utils.isValidCno,
  caepf: utils.isValidCaepf,
  cnh: utils.isValidCnh,
  renavam: utils.isValidRenavam,
  placa: utils.isValidLicensePlate,
  titulo_eleitor: utils.isValidVoterId,
  cns: utils.isValidCns,
  telefone: utils.isValidPhone,
  email: utils.isValidEmail,
  chave_dfe: utils.isValidNfeKey,
  boleto: utils.isValidBoleto,
  pix: utils.isValidPixKey,
  pix_copia_e_cola: utils.isValidPixPayload,
  ncm: utils.isValidNcm,
  processo: utils.isValidProcessoJuridico,
  iban: utils.isValidIban,
  cartao: utils.isValidCreditCard,
};

const temLetra = (numero) => /[A-Z]/.test(numero);
// [kind, state, peer, the numbers, why, our verdict]
const motivos = [
  ["cnpj", "", "brazilian-utils", temLetra, "the peer knows digits alone", true],
  ["chave_dfe", "", "brazilian-utils", (n) => temLetra(n) || n.slice(20, 22) === "59", "digits alone, no model 59", true],
  ["chave_dfe", "", "brazilian-utils", () => true, "the issuer's own check digits are not looked at", true],
  ["ncm", "", "brazilian-utils", () => true, "the peer asks the table of this year", true],
  ["telefone", "", "brazilian-utils", (n) => /^\d\d[678]/.test(n), "mobiles that start with 6 to 8 are reserved", false],
  ["ie", "CE", "inscricaoestadual", (n) => !n.startsWith("06"), "06 is not the only start", true],
  ["ie", "DF", "brazilian-utils", (n) => /^0[89]/.test(n), "08 and 09 follow 07", true],
  ["ie", "GO", "brazilian-utils", (n) => n.startsWith("2"), "20 to 29 by the rule of 2022", true],
  ["ie", "GO", "inscricaoestadual", (n) => n.startsWith("2"), "20 to 29 by the rule of 2022", true],
  ["ie", "GO", "brazilian-utils", (n) => /^101[01]/.test(n), "in a range two digits are right", true],
  ["ie", "GO", "inscricaoestadual", (n) => /^101[01]/.test(n), "in a range two digits are right", true],
  ["ie", "MS", "inscricaoestadual", (n) => n.startsWith("50"), "50 follows 28", true],
  ["ie", "MT", "brazilian-utils", (n) => n.length === 9, "nine digits are eleven without their zeros", true],
  ["ie", "MT", "inscricaoestadual", (n) => n.length === 11, "eleven digits are the official length", true],
  ["ie", "PA", "inscricaoestadual", (n) => /^7[5-9]/.test(n), "75 to 79 follow 15", true],
  ["ie", "PE", "brazilian-utils", (n) => n.length === 14, "the older length", true],
  ["ie", "PE", "inscricaoestadual", (n) => n.length === 14, "the older length, which starts with 18"],
  ["ie", "RO", "brazilian-utils", (n) => n.length === 9, "the older length", true],
  ["ie", "RO", "inscricaoestadual", () => true, "the peer errs for the remainders 0 and 1"],
];

const chamar = (pedidos) => {
  const entrada = pedidos.map((pedido) => JSON.stringify(pedido)).join("\n") + "\n";
  const { stdout } = spawnSync(ory, ["chamar", "--lote"], { input: entrada, maxBuffer: 1 << 30 });
  return stdout.toString().trimEnd().split("\n").map((linha) => JSON.parse(linha).resultado);
};
// The same numbers in every run.
let estado = 20;
const sortear = (limite) => (estado = (estado * 48271) % 2147483647) % limite;

const tipos = [...Object.keys(pares).map((tipo) => [tipo, ""]), ...UFS.map((uf) => ["ie", uf])];
const pedidos = tipos.flatMap(([tipo, uf]) =>
  Array.from({ length: Number(quantos) / 2 }, (_, semente) => ({ op: "GerarDocumento", args: [tipo, semente, uf] })),
);
const casos = chamar(pedidos).flatMap((numero, i) => {
  const lugar = sortear(numero.length);
  const trocado = numero.slice(0, lugar) + sortear(10) + numero.slice(lugar + 1);
  const [tipo, , uf] = pedidos[i].args;
  return [[tipo, numero, uf], [tipo, trocado, uf]];
});
const vereditos = chamar(casos.map((args) => ({ op: "ValidouDocumento", args })));

let comparados = 0;
const diferencas = new Map();
const comparar = (par, [tipo, numero, uf], nosso, deles) => {
  ++comparados;
  if (nosso === Boolean(deles)) return;
  const motivo = motivos.find(
    ([t, u, p, quando, , sempre]) => t === tipo && u === uf && p === par && quando(numero) && (sempre ?? nosso) === nosso,
  );
  const chave = [motivo ? "explained" : "NO REASON", tipo, uf, par, motivo?.[4] ?? "", `ours ${nosso}`].join(" | ");
  const entrada = diferencas.get(chave) ?? { vezes: 0, exemplo: numero };
  ++entrada.vezes;
  diferencas.set(chave, entrada);
};
casos.forEach((caso, i) => {
  const [tipo, numero, uf] = caso;
  if (tipo !== "ie") return comparar("brazilian-utils", caso, vereditos[i], pares[tipo](numero));
  comparar("brazilian-utils", caso, vereditos[i], utils.isValidIE(uf, numero));
  comparar("inscricaoestadual", caso, vereditos[i], inscricaoEstadual(numero, uf));
});
for (const [chave, { vezes, exemplo }] of [...diferencas].sort())
  console.log(`${String(vezes).padStart(7)}  ${chave} | ${exemplo}`);
console.log(`${comparados} comparisons`);
process.exitCode = [...diferencas.keys()].some((chave) => chave.startsWith("NO")) ? 1 : 0;
