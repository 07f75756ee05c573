// Element strings as bwip-js judges them, one a line: the string in brackets, "ok" or the name of its refusal, and the data that
// its GS1-128 symbol then holds, ^ for FNC1.
//
//   node judge-elements.mjs DIRECTORY-OF-BWIP-JS COUNT SEED >judged-elements.txt
//
// Every row of dictionary.txt gives one string that is right and several that are not; COUNT random sequences of elements follow,
// every second one with an accident. Before them stand strings at the edges of each check. The same count and seed give the same lines.
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

// ---- What lies at the edge of a check ----

const daysOf = (ai, year, behind) => Array.from({ length: 12 }, (_, month) => ["00", "01", "28", "29", "30", "31", "32"].map((day) => [ai, year + two(month + 1) + day + behind])).flat();
const EDGES = [
  ...daysOf("17", "26", ""), ...daysOf("4326", "24", ""), ...daysOf("7251", "2026", "0000"),
  ...["000229", "010229", "040229", "990229", "960229"].map((date) => ["11", date]),
  ...["19000229", "20000229", "20040229", "20010229", "21000229", "24000229", "00000229", "04000101", "20190931"].map((date) => ["7250", date]),
  ...["2359", "2400", "1960", "1959", "0000", "0060"].map((time) => ["7003", "260101" + time]),
  ...["23", "24", "2359", "2360", "235959", "235960", "000000"].map((time) => ["8008", "260101" + time]),
  ...["a", "ab", "abc", "abcd", "ab=", "ab==", "a==", "abc=", "a=b", "a=b=", "=", "==", "===", "abcdef==", "abcde=", "abcdef===", "a===", "ab=c", "abcd=c", "abcd==", "abcdefg==", "abc==="].map((value) => ["8030", value]),
  ...["DE89370400440532013000", "GB82WEST12345698765432", "DE091", "DE57A", "DE0312", "DE36", "DE8", "D", "DE77abc", "1289370400440532013000", "D189370400440532013000", "1E89370400440532013000", "DE89370400440532013001", "DE89370400440532013000-"].map((value) => ["8007", value]),
  ...["1800000000", "1800000001", "1799999999"].map((value) => ["4309", value + "3600000000"]),
  ...["3600000001", "3599999999"].map((value) => ["4309", "1800000000" + value]),
  ...["0101", "0102", "0201", "0001", "0100", "9999", "9998", "0000", "1010"].map((value) => ["8006", "09501101530003" + value]),
  ...["1/1", "1/2", "2/1", "0/1", "1/0", "9/9", "0/0", "A/1", "1/A", "1-2", "111", "11/", "/11"].map((value) => ["7258", value]),
  ...["%", "%2", "%20", "%2g", "%g2", "A%20%", "A%20%4", "%2F%2f", "%%20", "20%", "%20A", "%AG", "%GA", "%/0", "%0/", "%:0", "%0:", "%@0"].map((value) => ["4300", value]),
  ..."-_=azAZ09+/".split("").map((value) => ["7040", "1AB" + value]),
  ...["00", "01", "10", "11", "79", "80", "99"].map((value) => ["7241", value]),
  ..."0123456789".split("").map((value) => ["7252", value]),
  ..."0123456789".split("").map((value) => ["8001", "123412345123" + value + "1"]),
  ...["00001234512311", "12340000012311", "12341234500011", "10000000100111"].map((value) => ["8001", value]),
  ...["0", "1", "01", "00", "10"].map((value) => ["8011", value]),
  ...["-", "A", "0", "", "--"].map((value) => ["4332", "123456" + value]),
  ...["1", "12", "123", "1A", "A1", "12A", "1A2", "A12"].map((value) => ["8004", value]),
  ...["1987654Ad4X4bL5ttr2310c2K", "1987654Ad4X4bL5ttr2310c2L", "1987654Ad4X4bL5ttr2310c3K", "12W", "1W2", "124A", "A2", "2W", "12", "1A7F", "12A7F", "100096"].flatMap((value) => [["8013", value], ["8014", value]]),
  ...["A234", "1A34", "AB", "A", "1", "12", "1234", "12A"].flatMap((value) => [["8013", value + checkPair(value)], ["8014", value + checkPair(value)]]),
  ...["", "1", "12", "123"].map((value) => ["8043", "123456789012345678" + value]),
  ...["276", "276276", "27627", "276276276276276", "276276276276276276", "27627627627627"].map((value) => ["423", value]),
  ...["0", "1", "9"].map((value) => ["8003", value + "9501101530003A"]),
].map(([ai, value]) => element(ai, value));
const WHOLE = ["(10)A(10)A", "(10)A(10)B", "(10)A(21)B(10)A", "(10)A(21)B(10)AB", "(10)AB(21)B(10)A", "(10)ABC(10)ABD", "(10)ABC(21)A(10)ABC", "(01)09501101530003(01)09501101530003", "(10)A)B", "(10))", "(10)A(B", "()1", "(1)1", "(10)", "(10)A()", "(10)A(12)", "(10)A((21)B", "(10)A\\B", "(010)A", "(3106)123456", "(3956)123456", "(3944)1234", "(04)1234567890123456"];

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

const lines = [...rows.flatMap(linesOf), ...EDGES, ...WHOLE, ...Array.from({ length: count }, sequence)];
console.log(`# bwip-js ${version} judged these: judge-elements.mjs DIRECTORY ${count} ${seed}`);
console.log("# element string TAB ok or the judge's refusal TAB data of the symbol, ^ for FNC1");
for (const line of new Set(lines)) console.log([line, ...judged(line)].join("\t"));
