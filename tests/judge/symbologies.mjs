// The linear symbologies as the judges know them: by what name a generator draws them, in what
// format a reader finds them, and what it has to say of a text.
import { bytes, CAPITALS, DIGITS } from './texts.mjs';

export const PERMIT = 32;
const NATIVE_39 = `${DIGITS}${CAPITALS}-. $/+%`;
const ADDON_GAP = 9;

// Modulo 10 of the GS1 General Specifications: weights 3, 1 from the right.
export function checkDigit(digits) {
  let sum = 0;
  for (let i = 0; i < digits.length; ++i) sum += Number(digits.at(-1 - i)) * (i % 2 === 0 ? 3 : 1);
  return String((10 - (sum % 10)) % 10);
}
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

const plain = (bcid, options = {}) => (text) => ({ bcid, text, options: { binarytext: true, ...options } });

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
  };
}

function ofText({ number, name, draw, alphabet, twoWidths = false, format, zbar = format, said = (text) => text, wrap, usual }) {
  return {
    number, name, draw, alphabet, twoWidths, format, zbar, usual, wrap: wrap ?? ((text) => text),
    said: (text) => ({ bytes: said(text) }),
    saidByZbar: (text) => ({ bytes: said(text) }),
  };
}

const first = (digits) => (main) => withCheck(main.slice(0, digits));
const upcA = (main) => '0' + first(11)(main);
function upcE(main) {
  if (main.length > 8) return upcA(main);
  return '0' + withCheck(expandUpcE(main.length === 6 ? `0${main}` : main));
}

export const SYMBOLOGIES = [
  ofText({ number: 0, name: 'Codabar', draw: (text) => plain('rationalizedCodabar')(codabarNames(text)),
           alphabet: `${DIGITS}-$:/.+`, twoWidths: true, format: 'Codabar', said: codabarNames,
           wrap: (text, texts) => texts.pick('ABCDTN*E') + text + texts.pick('ABCDTN*E') }),
  ofText({ number: 1, name: 'Code 39', draw: plain('code39'), alphabet: NATIVE_39, twoWidths: true, format: 'Code39Std', zbar: 'Code39' }),
  ofText({ number: 2, name: 'Code 93', draw: plain('code93', { includecheck: true }), alphabet: NATIVE_39, format: 'Code93' }),
  ofText({ number: 22, name: 'Code 93, full ASCII', draw: plain('code93ext', { includecheck: true }), alphabet: bytes(0, 127), format: 'Code93' }),
  ofText({ number: 4, name: 'MSI', draw: plain('msi', { includecheck: true }), alphabet: DIGITS, usual: 18 }),
  ofText({ number: 11, name: 'Code 11', draw: plain('code11', { includecheck: true }), alphabet: `${DIGITS}-`, twoWidths: true }),
  ofText({ number: 21, name: 'Interleaved 2 of 5', draw: plain('interleaved2of5'), alphabet: DIGITS, twoWidths: true,
           format: 'ITF', zbar: 'I25', said: (text) => (text.length % 2 === 0 ? text : `0${text}`) }),
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
  ofText({ number: 5, name: 'Code 128', draw: plain('code128', { newencoder: true }), alphabet: bytes(0, 255), format: 'Code128' }),
  ofText({ number: 6, name: 'Code 128 from set A', draw: plain('code128', { newencoder: true }), alphabet: bytes(0, 255), format: 'Code128' }),
  ofText({ number: 7, name: 'Code 128 set B', draw: plain('code128', { newencoder: true }), alphabet: bytes(32, 127), format: 'Code128' }),
  ofText({ number: 8, name: 'Code 128 from set C', draw: plain('code128', { newencoder: true }), alphabet: bytes(0, 255), format: 'Code128' }),
];
export const ROW = Object.fromEntries(SYMBOLOGIES.map((row) => [row.number, row]));
export const isCode128 = (number) => number >= 5 && number <= 8;
