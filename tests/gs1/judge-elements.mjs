// Element strings as bwip-js judges them, one a line: the string in brackets, "ok" or the name of its refusal, and the data that
// its GS1-128 symbol then holds, ^ for FNC1.
//
//   node judge-elements.mjs DIRECTORY-OF-BWIP-JS COUNT SEED >judged-elements.txt
//
// Every row of dictionary.txt gives one string that is right and several that are not; COUNT random sequences of elements follow,
// every second one with an accident. The same count and seed give the same lines.
import { readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { resolve } from "node:path";

const require = createRequire(resolve(process.argv[2]) + "/");
const bwip = require("bwip-js");
const version = JSON.parse(readFileSync(resolve(process.argv[2], "node_modules/bwip-js/package.json"), "utf8")).version;
const count = Number(process.argv[3]);
const seed = Number(process.argv[4]);

// ---- Random numbers, the same everywhere: a linear congruence modulo 2^32, its upper bits ----

let state = seed >>> 0;
function below(limit) {
  state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
  return Math.floor((state / 4294967296) * limit);
}
const oneOf = (list) => list[below(list.length)];
const text = (alphabet, length) => Array.from({ length }, () => oneOf(alphabet)).join("");

// ---- The rows ----

const DIGITS = "0123456789";
const UPPER = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
const LOWER = UPPER.toLowerCase();
const SETS = {
  N: DIGITS,
  X: "!\"%&'()*+,-./:;<=>?_" + DIGITS + UPPER + LOWER,
  Y: "#-/" + DIGITS + UPPER,
  Z: "-_" + DIGITS + UPPER + LOWER,
};
const WRONG = { N: "A /-", X: " #$@[\\]`{|}~", Y: " a*(", Z: " +/.%" };

function componentOf(written) {
  const [, isOptional, set, dots, longest, checks] = /^(\[?)([NXYZ])(\.\.)?(\d+)\]?(?:,(.*))?$/.exec(written);
  return { isOptional: isOptional !== "", set, shortest: dots ? 1 : Number(longest), longest: Number(longest), checks: (checks ?? "").split(",") };
}

function rowsOf(file) {
  const lines = readFileSync(file, "utf8").split("\n").filter((line) => line !== "" && !line.startsWith("#"));
  return lines.map((line) => {
    const [ais, , format] = line.split("\t");
    const [first, last = first] = ais.split("-");
    return { first, last, components: format.split(" ").map(componentOf) };
  });
}
const rows = rowsOf(new URL("dictionary.txt", import.meta.url));
const aiOf = (row) => String(Number(row.first) + below(Number(row.last) - Number(row.first) + 1)).padStart(row.first.length, "0");

// ---- Values that are right ----

const two = (number) => String(number).padStart(2, "0");
const checkDigit = (digits) => (10 - ([...digits].reverse().reduce((sum, digit, i) => sum + digit * (i % 2 ? 1 : 3), 0) % 10)) % 10;

const PRIMES = [2, 3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37, 41, 43, 47, 53, 59, 61, 67, 71, 73, 79, 83];
const SORTED = [...SETS.X].sort();
function checkPair(characters) {
  const sum = [...characters].reverse().reduce((total, character, i) => total + SORTED.indexOf(character) * PRIMES[i], 0) % 1021;
  const alphabet = "23456789ABCDEFGHJKLMNPQRSTUVWXYZ";
  return alphabet[sum >> 5] + alphabet[sum & 31];
}

const monthAndDay = () => two(1 + below(12)) + two(1 + below(28));
const VALUES = {
  yymmdd: () => two(below(100)) + monthAndDay(),
  yymmd0: () => two(below(100)) + oneOf([monthAndDay(), two(1 + below(12)) + "00"]),
  yyyymmdd: () => oneOf(["19", "20"]) + two(below(100)) + monthAndDay(),
  hhmi: () => two(below(24)) + two(below(60)),
  hh: () => two(below(24)),
  mi: () => two(below(60)),
  ss: () => two(below(60)),
  zero: () => "0",
  yesno: () => oneOf("01"),
  winding: () => oneOf("019"),
  iso5218: () => oneOf("0129"),
  hyphen: () => "-",
  pieceoftotal: () => oneOf(["0101", "0199", "9999", "0203"]),
  posinseqslash: () => oneOf(["1/1", "1/9", "9/9", "2/3"]),
  latitude: () => text("01", 1) + text("01234567", 9),
  longitude: () => text("012", 1) + text(DIGITS, 9),
  iso3166: () => oneOf(["056", "276", "840"]),
  iso3166999: () => oneOf(["056", "276", "999"]),
  iso3166alpha2: () => oneOf(["BE", "DE", "US"]),
  iso4217: () => oneOf(["978", "840"]),
  iban: () => "DE89370400440532013000",
  mediatype: () => oneOf(["01", "10", "80", "99"]),
  packagetype: () => oneOf(["CT", "PX"]),
  importeridx: () => oneOf(SETS.Z),
  nozeroprefix: (length) => oneOf("123456789") + text(DIGITS, length - 1),
};

function componentValue({ set, shortest, longest, checks }) {
  const length = shortest + below(longest - shortest + 1);
  const special = checks.find((check) => check in VALUES);
  if (special) return VALUES[special](length);
  if (checks.includes("csumalpha")) {
    const body = text(DIGITS, 4) + text(SETS.X, 1 + below(longest - 6));
    return body + checkPair(body);
  }
  if (checks.includes("csum")) {
    const digits = text(DIGITS, length - 1);
    return digits + checkDigit(digits);
  }
  if (checks.includes("pcenc")) return text(DIGITS + UPPER, Math.max(1, length - 3)) + (length > 3 ? "%2" + oneOf("09AFaf") : "");
  if (checks.includes("gcppos1")) return text(DIGITS, Math.min(length + 1, longest, 4)) + text(SETS[set], Math.max(0, length - 4));
  if (checks.includes("nonzero")) return oneOf("123456789") + text(DIGITS, length - 1);
  return text(SETS[set], length);
}

function partsOf(row) {
  const parts = [];
  for (const component of row.components) {
    if (component.isOptional && below(2) === 0) break;
    parts.push(componentValue(component));
  }
  return parts;
}
const valueOf = (row) => partsOf(row).join("");
const element = (ai, value) => `(${ai})${value.replaceAll("(", "\\(")}`;

// ---- Values that are not ----

const longestOf = (row) => row.components.reduce((sum, { longest }) => sum + longest, 0);
const shortestOf = (row) => row.components.reduce((sum, { isOptional, shortest }) => sum + (isOptional ? 0 : shortest), 0);

// A component with the check is made anew by `wrong`.
function withWrong(row, check, wrong) {
  const at = row.components.findIndex(({ checks }) => checks.includes(check));
  if (at < 0) return [];
  const parts = row.components.map(componentValue);
  parts[at] = wrong(parts[at]);
  return [parts.join("")];
}

const nextIn = (alphabet, character) => alphabet[(alphabet.indexOf(character) + 1) % alphabet.length];
const WRONG_BY_CHECK = {
  csum: (value) => value.slice(0, -1) + nextIn(DIGITS, value.at(-1)),
  csumalpha: (value) => value.slice(0, -1) + nextIn("23456789ABCDEFGHJKLMNPQRSTUVWXYZ", value.at(-1)),
  hasnondigit: () => oneOf(["100096", "100198", "101099"]),
  yymmdd: () => oneOf(["261301", "260001", "260230", "260431", "260100", "250229", "240230"]),
  yymmd0: () => oneOf(["261301", "260001", "260230", "260431", "260132", "250229", "260000"]),
  yyyymmdd: () => oneOf(["20261301", "20260001", "20260230", "19000229", "20250229", "20260100"]),
  hhmi: () => oneOf(["2400", "2360", "9999"]),
  hh: () => oneOf(["24", "99"]),
  mi: () => oneOf(["60", "99"]),
  ss: () => oneOf(["60", "99"]),
  zero: () => "1",
  nonzero: (value) => "0".repeat(value.length),
  yesno: () => oneOf("29"),
  winding: () => oneOf("28"),
  iso5218: () => oneOf("3478"),
  hyphen: () => "A",
  pieceoftotal: () => oneOf(["0000", "0201", "0100", "0001"]),
  posinseqslash: () => oneOf(["2/1", "0/1", "1/0", "1-2", "123", "A/B", "//1"]),
  latitude: () => oneOf(["1800000001", "9999999999"]),
  longitude: () => oneOf(["3600000001", "9999999999"]),
  pcenc: () => oneOf(["A%", "A%2", "A%2G", "%", "%%20", "A%G0B"]),
  mediatype: () => oneOf(["00", "11", "79"]),
  importeridx: () => oneOf("=+!"),
  nozeroprefix: () => oneOf(["00", "01"]),
  gcppos1: () => oneOf(["A", "1", "1A23", "A234", "12A", "#1"]),
  iso3166: () => "003",
  iso3166999: () => "003",
  iso3166alpha2: () => "QQ",
  iso4217: () => "003",
  iban: () => oneOf(["DE88370400440532013000", "de89370400440532013000", "DE57", "12345"]),
  packagetype: () => "0",
};

function wrongCharacter(row, value) {
  const at = below(value.length);
  let end = 0;
  const component = row.components.find(({ longest }) => (end += longest) > at) ?? row.components.at(-1);
  return value.slice(0, at) + oneOf(WRONG[component.set]) + value.slice(at + 1);
}

function linesOf(row) {
  const value = valueOf(row);
  const set = SETS[row.components.at(-1).set];
  const wrong = Object.keys(WRONG_BY_CHECK).flatMap((check) => withWrong(row, check, WRONG_BY_CHECK[check]));
  const values = [value, value + text(set, longestOf(row) - value.length + 1), value.slice(0, shortestOf(row) - 1), wrongCharacter(row, value), ...wrong];
  return values.map((one) => element(aiOf(row), one));
}

// ---- Sequences ----

const ACCIDENTS = [
  (line, at) => line.slice(0, at) + line.slice(at + 1),
  (line, at) => line.slice(0, at) + line[at] + line.slice(at),
  (line, at) => line.slice(0, at) + oneOf(SETS.X + " #\\") + line.slice(at + 1),
  (line, at) => line.slice(0, at) + oneOf(DIGITS) + line.slice(at + 1),
  (line, at) => line.slice(0, at),
];

function sequence() {
  const usual = ["01", "10", "17", "21", "240", "3100", "37", "400"].map((ai) => rows.find(({ first }) => first === ai));
  const elements = Array.from({ length: 1 + below(4) }, () => {
    const row = below(2) ? oneOf(rows) : oneOf(usual);
    return element(aiOf(row), valueOf(row));
  });
  const line = elements.join("");
  return below(2) ? line : oneOf(ACCIDENTS)(line, below(line.length));
}

// ---- The judge ----

// Element widths by symbol character value, asked for one by one.
const widths = (values) => Array.from(bwip.raw("code128", values, { raw: true })[0].sbs);
const VALUES_BY_WIDTHS = new Map(
  Array.from({ length: 106 }, (_, value) => [widths(`^104^${String(value).padStart(3, "0")}`).slice(6, 12).join(""), value]));

// The data of a symbol of set A, B and C without shifts to other bytes than ASCII.
function dataOf(sbs) {
  const values = [];
  for (let at = 0; at + 6 < sbs.length; at += 6) values.push(VALUES_BY_WIDTHS.get(sbs.slice(at, at + 6).join("")));
  let set = "ABC"[values[0] - 103];
  let data = "";
  let shifted = false;
  for (const value of values.slice(1, -2)) {
    const current = shifted ? (set === "A" ? "B" : "A") : set;
    shifted = false;
    if (value === 102) data += "^";
    else if (set === "C" && value < 100) data += two(value);
    else if (value === 98 && set !== "C") shifted = true;
    else if (value >= 99) set = { 99: "C", 100: "B", 101: "A" }[value];
    else data += String.fromCharCode(current === "A" && value >= 64 ? value - 64 : value + 32);
  }
  return data;
}

// In its own escapes a bracket of a value is ^040.
function judged(line) {
  const given = line.replaceAll("^", "^094").replaceAll("\\(", "^040");
  try {
    return ["ok", dataOf(Array.from(bwip.raw("gs1-128", given, { parse: true })[0].sbs))];
  } catch (refusal) {
    return [/^bwipp\.(\w+)/.exec(refusal.message)?.[1] ?? "refused", ""];
  }
}

const lines = [...rows.flatMap(linesOf), ...Array.from({ length: count }, sequence)];
console.log(`# bwip-js ${version} judged these: judge-elements.mjs DIRECTORY ${count} ${seed}`);
console.log("# element string TAB ok or the judge's refusal TAB data of the symbol, ^ for FNC1");
for (const line of new Set(lines)) console.log([line, ...judged(line)].join("\t"));
