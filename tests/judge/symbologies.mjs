// The linear symbologies as the judges know them: by what name a generator draws them, in what
// format a reader finds them, and what it has to say of a text.
import { CHECK, checkDigit, modulo16, modulo43, spellOut } from './checks.mjs';
import { bytes, CAPITALS, DIGITS } from './texts.mjs';

export const PERMIT = 32;
export const ADD_START_STOP = 512;
const NATIVE_39 = `${DIGITS}${CAPITALS}-. $/+%`;
const ADDON_GAP = 9;

const withCheck = (digits) => digits + checkDigit(digits);

// The UPC-A number, without its check digit, that number system and six digits of UPC-E stand for.
export function expandUpcE(text) {
  const [system, a, b, c, d, e, last] = text;
  if (last <= '2') return system + a + b + last + '0000' + c + d + e;
  if (last === '3') return system + a + b + c + '00000' + d + e;
  if (last === '4') return system + a + b + c + d + '00000' + e;
  return system + a + b + c + d + e + '0000' + last;
}

// Zero suppression of UPC-E: whether it gives the six digits for the number they stand for.
export function isSuppressed(text) {
  const last = text[6];
  if (last === '3') return text[3] > '2';
  if (last === '4') return text[4] !== '0';
  return last < '5' || text[5] !== '0';
}

// Start and stop characters have two names each.
const codabarNames = (text) => {
  const name = (letter) => 'ABCD'['TN*E'.indexOf(letter)] ?? letter;
  return text.length < 2 ? text : name(text[0]) + text.slice(1, -1) + name(text.at(-1));
};

// The generator's options for the schemes of check characters that it knows, by job.check.
const plain = (bcid, schemes = {}) => (text, job) => {
  const scheme = schemes[job.check ?? CHECK.OWN];
  return scheme === undefined && job.check ? null : { bcid, text, options: { binarytext: true, ...scheme } };
};
const INCLUDE = { includecheck: true };
const VALIDATE = { validatecheck: true };
const ofModulo = (checktype) => ({ includecheck: true, checktype });
const MSI_SCHEMES = {
  [CHECK.OWN]: INCLUDE, [CHECK.NONE]: {}, [CHECK.VERIFY]: VALIDATE, [CHECK.MSI_10]: ofModulo('mod10'),
  [CHECK.MSI_10_10]: ofModulo('mod1010'), [CHECK.MSI_11]: ofModulo('mod11'), [CHECK.MSI_11_10]: ofModulo('mod1110'),
  [CHECK.MSI_NCR_11]: ofModulo('ncrmod11'), [CHECK.MSI_NCR_11_10]: ofModulo('ncrmod1110'),
};

// It has C below ten characters and C and K from there on, whatever is asked for.
function drawCode11(text, job) {
  const schemes = { [CHECK.OWN]: INCLUDE, [CHECK.NONE]: {}, [CHECK.VERIFY]: VALIDATE };
  if (text.length < 10) schemes[CHECK.CODE_11_C] = INCLUDE;
  if (text.length >= 10) schemes[CHECK.CODE_11_CK] = INCLUDE;
  return plain('code11', schemes)(text, job);
}

// A on both sides of a text that has no start and stop, where that is asked for.
function framed(text, job) {
  const isBare = !/^[ABCDTN*E]/.test(text) && !/[ABCDTN*E]$/.test(text);
  return (job.flags & ADD_START_STOP) !== 0 && isBare ? `A${text}A` : text;
}
const drawCodabar = (text, job) => plain('rationalizedCodabar', {
  [CHECK.NONE]: {}, [CHECK.MOD_16]: INCLUDE, [CHECK.VERIFY]: VALIDATE,
})(codabarNames(framed(text, job)), job);

const saidOfCodabar = (text, job) => {
  const drawn = codabarNames(framed(text, job));
  return job.check === CHECK.MOD_16 ? drawn.slice(0, -1) + modulo16(drawn) + drawn.at(-1) : drawn;
};
const hasCheck39 = ({ check }) => check === CHECK.MOD_43 || check === CHECK.VERIFY;
const saidOf39Full = (text, job) => (job.check === CHECK.MOD_43 ? text + modulo43(spellOut(text)) : text);
const saidOf2of5 = (text, job) => {
  const digits = job.check === CHECK.ITF_10 ? withCheck(text) : text;
  return digits.length % 2 === 0 ? digits : `0${digits}`;
};

// The text as numbers of the main symbol and of the add-on, which a sign may part; of a symbology
// with add-on the last digits are the add-on's.
function partsOf(text, addOn) {
  const sign = text.indexOf('+');
  const main = sign >= 0 ? sign : Math.max(text.length - addOn, 0);
  return { main: text.slice(0, main), extra: text.slice(sign >= 0 ? main + 1 : main) };
}

// digits: of the main symbol without its check digit; read: what readers make of the main digits.
function eanUpc({ number, name, bcid, digits, addOn = 0, format, read, first = DIGITS, zbar = format }) {
  const draw = (text, job) => {
    const { main, extra } = partsOf(text, addOn);
    if (addOn > 0 && extra.length !== addOn) return null;  // it would draw one with another add-on
    const options = { binarytext: true, addongap: job.addon_gap || ADDON_GAP };
    if ((job.flags & PERMIT) !== 0 && bcid === 'ean8') options.permitaddon = true;
    const withSystem = bcid === 'upce' && main.length === 6 ? `0${main}` : main;
    return { bcid, text: extra !== '' || text.includes('+') ? `${withSystem} ${extra}` : withSystem, options };
  };
  return {
    number, name, draw, isEanUpc: true, digits, addOn, format, zbar,
    hasAddOn: (text) => partsOf(text, addOn).extra !== '',
    text: (texts) => texts.of(first, 1) + texts.of(DIGITS, digits - 1 + addOn),
    alphabet: DIGITS,
    said: (text) => ({ bytes: read(partsOf(text, addOn).main) + partsOf(text, addOn).extra }),
    saidByZbar: (text) => ({ bytes: read(partsOf(text, addOn).main) }),
    // What a reader makes of the library's reading: the digits of the symbol, a space and the add-on.
    promised: (reading) => read(reading.split(' ')[0]) + (reading.split(' ')[1] ?? ''),
  };
}

// said: what readers make of a text; promised: of the library's reading; checks: the schemes that may be asked for; usual: the longest of random texts.
function ofText({ said = (text) => text, wrap = (text) => text, zbar = undefined, format, ...row }) {
  const saying = (text, job) => ({ bytes: said(text, job) });
  return { promised: (reading) => reading, ...row, wrap, format, zbar: zbar === undefined ? format : zbar, said: saying, saidByZbar: saying };
}

const first = (digits) => (main) => withCheck(main.slice(0, digits));
const upcA = (main) => '0' + first(11)(main);
function upcE(main) {
  if (main.length > 8) return upcA(main);
  return '0' + withCheck(expandUpcE(main.length === 6 ? `0${main}` : main));
}

// Texts with escapes, ^FNC1 to ^FNC3, ^^ and ^000 to ^255, are the same to the generator but for the numbers.
const ESCAPED = 3;
const ESCAPE = /\^(\^|\d{3}|FNC\d)/g;
const unescaped = (text) => text.replace(ESCAPE, (whole, name) => {
  if (!/\d{3}/.test(name)) return whole;
  return name === '094' ? '^^' : String.fromCharCode(Number(name));
});

function drawCode128(text, job) {
  const options = { newencoder: true };
  if (job.input !== ESCAPED) return plain('code128', { [CHECK.OWN]: options })(text, job);
  return { bcid: 'code128', text: unescaped(text), options: { binarytext: true, parsefnc: true, ...options } };
}

// An FNC1 in first place is the reader's, any other a separator.
function saidOfCode128(text, job) {
  if (job.input !== ESCAPED) return text;
  return unescaped(text).replace(/^\^FNC1/, '').replace(ESCAPE, (_, name) => (name === '^' ? '^' : '\x1d'));
}

export const SYMBOLOGIES = [
  ofText({ number: 0, name: 'Codabar', draw: drawCodabar, alphabet: `${DIGITS}-$:/.+`, twoWidths: true, format: 'Codabar',
           checks: [CHECK.NONE, CHECK.MOD_16, CHECK.VERIFY], said: saidOfCodabar,
           promised: (reading, job, said) => said[0] + reading + said.at(-1),  // without start and stop
           wrap: (text, texts) => texts.pick('ABCDTN*E') + text + texts.pick('ABCDTN*E') }),
  ofText({ number: 1, name: 'Code 39', draw: plain('code39', { [CHECK.NONE]: {}, [CHECK.MOD_43]: INCLUDE, [CHECK.VERIFY]: VALIDATE }),
           alphabet: NATIVE_39, twoWidths: true, format: 'Code39Std', zbar: 'Code39', checks: [CHECK.NONE, CHECK.MOD_43, CHECK.VERIFY],
           said: (text, job) => (job.check === CHECK.MOD_43 ? text + modulo43(text) : text) }),
  ofText({ number: 102, name: 'Code 39, full ASCII', draw: plain('code39ext', { [CHECK.NONE]: {}, [CHECK.MOD_43]: INCLUDE, [CHECK.VERIFY]: VALIDATE }),
           alphabet: bytes(0, 127), twoWidths: true, format: 'Code39', zbar: null, checks: [CHECK.NONE, CHECK.MOD_43, CHECK.VERIFY],
           said: saidOf39Full, promised: (reading, job) => (hasCheck39(job) ? reading + modulo43(spellOut(reading)) : reading) }),
  ofText({ number: 2, name: 'Code 93', draw: plain('code93', { [CHECK.OWN]: INCLUDE }), alphabet: NATIVE_39, format: 'Code93' }),
  ofText({ number: 22, name: 'Code 93, full ASCII', draw: plain('code93ext', { [CHECK.OWN]: INCLUDE }), alphabet: bytes(0, 127),
           format: 'Code93' }),
  ofText({ number: 4, name: 'MSI', draw: plain('msi', MSI_SCHEMES), alphabet: DIGITS, usual: 16,
           checks: Object.keys(MSI_SCHEMES).map(Number).filter((check) => check !== CHECK.OWN) }),
  ofText({ number: 11, name: 'Code 11', draw: drawCode11, alphabet: `${DIGITS}-`, twoWidths: true,
           checks: [CHECK.NONE, CHECK.VERIFY, CHECK.CODE_11_C, CHECK.CODE_11_CK] }),
  ofText({ number: 21, name: 'Interleaved 2 of 5', alphabet: DIGITS, twoWidths: true, format: 'ITF', zbar: 'I25', said: saidOf2of5,
           draw: plain('interleaved2of5', { [CHECK.NONE]: {}, [CHECK.ITF_10]: INCLUDE, [CHECK.VERIFY]: VALIDATE }),
           checks: [CHECK.NONE, CHECK.ITF_10, CHECK.VERIFY] }),
  ofText({ number: 101, name: 'ITF-14', alphabet: DIGITS, twoWidths: true, format: 'ITF', zbar: 'I25', said: (text) => first(13)(text),
           draw: plain('itf14'), usual: 14 }),
  eanUpc({ number: 3, name: 'EAN-13', bcid: 'ean13', digits: 12, format: 'EAN13', read: first(12) }),
  eanUpc({ number: 15, name: 'EAN-13 + 2', bcid: 'ean13', digits: 12, addOn: 2, format: 'EAN13', read: first(12) }),
  eanUpc({ number: 16, name: 'EAN-13 + 5', bcid: 'ean13', digits: 12, addOn: 5, format: 'EAN13', read: first(12) }),
  eanUpc({ number: 12, name: 'EAN-8', bcid: 'ean8', digits: 7, format: 'EAN8', read: first(7) }),
  eanUpc({ number: 17, name: 'EAN-8 + 2', bcid: 'ean8', digits: 7, addOn: 2, format: 'EAN8', read: first(7) }),
  eanUpc({ number: 18, name: 'EAN-8 + 5', bcid: 'ean8', digits: 7, addOn: 5, format: 'EAN8', read: first(7) }),
  eanUpc({ number: 9, name: 'UPC-A', bcid: 'upca', digits: 11, format: 'EAN13', read: upcA }),
  eanUpc({ number: 13, name: 'UPC-A + 2', bcid: 'upca', digits: 11, addOn: 2, format: 'EAN13', read: upcA }),
  eanUpc({ number: 14, name: 'UPC-A + 5', bcid: 'upca', digits: 11, addOn: 5, format: 'EAN13', read: upcA }),
  eanUpc({ number: 10, name: 'UPC-E', bcid: 'upce', digits: 7, first: '01', format: 'UPCE', zbar: 'EAN13', read: upcE }),
  eanUpc({ number: 19, name: 'UPC-E + 2', bcid: 'upce', digits: 7, addOn: 2, first: '01', format: 'UPCE', zbar: 'EAN13', read: upcE }),
  eanUpc({ number: 20, name: 'UPC-E + 5', bcid: 'upce', digits: 7, addOn: 5, first: '01', format: 'UPCE', zbar: 'EAN13', read: upcE }),
  ofText({ number: 5, name: 'Code 128', draw: drawCode128, said: saidOfCode128, alphabet: bytes(0, 255), format: 'Code128' }),
  ofText({ number: 6, name: 'Code 128 from set A', draw: drawCode128, said: saidOfCode128, alphabet: bytes(0, 255), format: 'Code128' }),
  ofText({ number: 7, name: 'Code 128 set B', draw: drawCode128, said: saidOfCode128, alphabet: bytes(32, 127), format: 'Code128' }),
  ofText({ number: 8, name: 'Code 128 from set C', draw: drawCode128, said: saidOfCode128, alphabet: bytes(0, 255), format: 'Code128' }),
];
export const ROW = Object.fromEntries(SYMBOLOGIES.map((row) => [row.number, row]));
export const isCode128 = (number) => number >= 5 && number <= 8;
