// Differences between a judge and the library that are right, each with its reason. when: of a case
// (job, text, answer), its text as characters and the difference (ours, theirs).
import { CHECK, checkDigit, modulo10, modulo43, spellOut } from './checks.mjs';
import { isCode128, isSuppressed, PERMIT, ROW } from './symbologies.mjs';

const DATA_CHARACTERS = 250;  // more than zbar has room for
// Number system and the six digits, if the text has them.
const upcEOf = (text) => (/^\d{6}(\+|$)/.test(text) ? `0${text}` : text).slice(0, 7);
const isUpcE = ({ job }) => [10, 19, 20].includes(job.symbology);
const isRefusedAs = ({ answer }, status) => answer.status === status;
const isEmpty = ({ text, theirs }) => text === '' && theirs === 'a symbol';
const hex = (text) => Buffer.from(text, 'latin1').toString('hex');
const lowBits = (digits) => Buffer.from(digits, 'hex').map((byte) => byte & 127).toString('hex');

function drawnOf39Full(text, { check }) {
  if (check === CHECK.MOD_43) return spellOut(text) + modulo43(spellOut(text));
  return check === CHECK.VERIFY ? spellOut(text.slice(0, -1)) + text.at(-1) : spellOut(text);
}

function hasWrongCheck({ job, text }) {
  const right = { 4: modulo10, 21: checkDigit }[job.symbology];
  return right !== undefined && right(text.slice(0, -1)) !== text.at(-1);
}

// What the judge doubles as one number: every second digit of MSI from the last on.
const doubled = (text) => Number([...text].reverse().filter((_, index) => index % 2 === 0).reverse().join(''));

// Status of a refusal.
const EMPTY = 3;
const BAD_CHARACTER = 4;
const BAD_LENGTH = 5;
const BAD_CHECK = 6;
const BAD_SYNTAX = 7;
const TOO_LONG = 10;
const NOT_STANDARD = 12;

export const LINEAR_DIFFERENCES = [
  { judge: 'bwip-js', what: 'Code 128, Interleaved 2 of 5 and MSI of no text', why: 'it draws a symbol without data; the library refuses it',
    when: (one) => isEmpty(one) && isRefusedAs(one, EMPTY) },
  { judge: 'bwip-js', what: 'Codabar of start and stop alone', why: 'it draws a symbol without data; the library refuses it',
    when: (one) => one.job.symbology === 0 && one.text.length === 2 && isRefusedAs(one, BAD_LENGTH) },
  { judge: 'bwip-js', what: 'Code 11 of ten characters', why: 'it writes C and K from ten characters on; K begins above ten',
    when: ({ job, text }) => job.symbology === 11 && text.length === 10 && (job.check ?? CHECK.OWN) === CHECK.OWN },
  { judge: 'bwip-js', what: 'Code 11 of ten characters and their C', why: 'likewise: it refuses eleven characters',
    when: ({ job, text, answer }) => job.symbology === 11 && job.check === CHECK.VERIFY && text.length === 11 && answer.status === 0 },
  { judge: 'bwip-js', what: 'Code 39, full ASCII, with a check character that is spelled out', why: 'it spells out the one that the text brings too',
    when: ({ job, text }) => job.symbology === 102 && job.check === CHECK.VERIFY && !/[0-9A-Z. -]$/.test(text) },
  { judge: 'bwip-js', what: 'Interleaved 2 of 5 and MSI with a wrong check digit', why: 'it does not test the one that the text brings',
    when: (one) => one.job.check === CHECK.VERIFY && hasWrongCheck(one) && isRefusedAs(one, BAD_CHECK) },
  { judge: 'bwip-js', what: 'Interleaved 2 of 5 and MSI of a check digit alone', why: 'it does not test the one that the text brings',
    when: (one) => one.job.check === CHECK.VERIFY && one.text.length === 1 && isRefusedAs(one, BAD_LENGTH) },
  { judge: 'bwip-js', what: 'MSI of many digits', why: 'its check digit comes from a number of 32 bits, which every second digit of the text overflows',
    when: ({ job, text, answer }) => job.symbology === 4 && answer.status === 0 && doubled(text) * 2 >= 2 ** 31 },
  { judge: 'bwip-js', what: 'UPC-A of seven digits', why: 'it takes the digits of a UPC-E and draws the UPC-A',
    when: (one) => {
      const { name, addOn } = ROW[one.job.symbology];
      return name.startsWith('UPC-A') && [7, 8].includes(one.text.length - addOn) && isRefusedAs(one, BAD_LENGTH);
    } },
  { judge: 'bwip-js', what: 'long Code 39 and Code 93', why: 'it takes texts of fewer symbol characters',
    when: ({ job, text, theirs }) => [1, 102, 2, 22].includes(job.symbology) && text.length >= 100 && /code(39|93)inputTooLong/.test(theirs) },
  { judge: 'bwip-js', what: 'EAN and UPC with a sign and no add-on behind it', why: 'it draws the symbol alone; the library refuses it',
    when: (one) => ROW[one.job.symbology].isEanUpc && one.text.endsWith('+') && isRefusedAs(one, BAD_SYNTAX) },
  { judge: 'bwip-js', what: 'UPC-E of six digits and an add-on without a sign', why: 'as many digits as UPC-E with its check digit or a UPC-A number: refused',
    when: (one) => {
      const isAmbiguous = /^\d+$/.test(one.text) && one.text.length - ROW[one.job.symbology].addOn === 6;
      return (one.job.symbology === 19 || one.job.symbology === 20) && isAmbiguous && isRefusedAs(one, BAD_LENGTH);
    } },
  { judge: 'bwip-js', what: 'UPC-E of number system 1', why: 'outside the standard: refused without PERMIT',
    when: (one) => isUpcE(one) && upcEOf(one.text)[0] === '1' && (one.job.flags & PERMIT) === 0 && isRefusedAs(one, NOT_STANDARD) },
  { judge: 'bwip-js', what: 'UPC-E of six digits that zero suppression does not give', why: 'another symbol stands for the number: refused',
    when: (one) => isUpcE(one) && !isSuppressed(upcEOf(one.text)) && isRefusedAs(one, NOT_STANDARD) },
  { judge: 'bwip-js', what: 'long Code 128', why: 'it takes texts of fewer symbol characters',
    when: ({ job, text, theirs }) => isCode128(job.symbology) && text.length >= 60 && theirs.includes('code128inputTooLong') },
  { judge: 'bwip-js', what: 'Code 128 from set A or C', why: 'the set to begin with is asked for: one switch more than the shortest',
    when: ({ job, wider }) => (job.symbology === 6 || job.symbology === 8) && wider === 11 },
  { judge: 'bwip-js', what: 'Code 128 set B of digits', why: 'it stays in set B: a symbol character for each character',
    when: ({ job, text, answer, wider }) =>
      job.symbology === 7 && wider > 0 && answer.columns === 11 * (text.length + 2) + 13 },
  { judge: 'bwip-js', what: 'Code 128 set B of other characters', why: 'it stays in set B, which has none but 32 to 127',
    when: (one) => one.job.symbology === 7 && isRefusedAs(one, BAD_CHARACTER) && /[^\x20-\x7f]/.test(one.text) },
  { judge: 'zxing', what: 'Codabar of one character', why: 'it reads symbols of two and more',
    when: ({ job, ours, theirs }) => job.symbology === 0 && ours.length === hex('A1B').length && theirs === 'nothing' },
  { judge: 'zxing', what: 'Code 39, full ASCII', why: 'where it does not take it for full ASCII it reports the characters as they are drawn',
    when: ({ job, text, theirs }) => job.symbology === 102 && theirs === hex(drawnOf39Full(text, job)) },
  { judge: 'zxing', what: 'Interleaved 2 of 5 of two digits', why: 'too few to be told from chance',
    when: ({ job, text, theirs }) => job.symbology === 21 && text.length <= 2 && theirs === 'nothing' },
  { judge: 'zxing', what: 'add-ons behind 11 or 12 light modules', why: 'it looks no farther',
    when: ({ job, theirs }) => job.addon_gap >= 11 && theirs === 'nothing' },
  { judge: 'zbar', what: 'Codabar of one character', why: 'it reads symbols of two and more',
    when: ({ job, ours, theirs }) => job.symbology === 0 && ours.length === hex('A1B').length && theirs === 'nothing' },
  { judge: 'zbar', what: 'Interleaved 2 of 5 of fewer than six digits', why: 'it reads six and more; the mark has the warning FEW_DIGITS',
    when: ({ job, text, theirs }) => job.symbology === 21 && text.length < 5 && theirs === 'nothing' },
  { judge: 'zbar', what: 'UPC-E of number system 1', why: 'it does not know it',
    when: (one) => isUpcE(one) && upcEOf(one.text)[0] === '1' && one.theirs === 'nothing' },
  { judge: 'zbar', what: 'Code 128 of bytes above 127', why: 'it passes over FNC4: the byte 128 lower',
    when: ({ job, ours, theirs }) => isCode128(job.symbology) && theirs === lowBits(ours) && theirs !== ours },
  { judge: 'zbar', what: 'long texts', why: `it has no room for ${DATA_CHARACTERS} symbol characters, and loses some`,
    when: ({ job, text, theirs, answer }) => {
      if (isCode128(job.symbology)) return answer.values.length >= DATA_CHARACTERS;
      return theirs === 'nothing' && Math.max(text.length, answer.values.length) >= DATA_CHARACTERS;
    } },
];

const isOf144 = ({ rows, columns }) => rows === 144 && columns === 144;

const INDUSTRY_144 = 16;

export const MATRIX_DIFFERENCES = [
  { judge: 'bwip-js, size', what: 'a smaller symbol', why: 'its look-ahead decides by the next few characters, the library by the whole text',
    when: ({ isSmaller }) => isSmaller },
  { judge: 'bwip-js', what: '144 x 144', why: 'it writes the order of the industry, the library that of the standard unless asked',
    when: ({ job, answer }) => isOf144(answer) && (job.flags & INDUSTRY_144) === 0 },
  { judge: 'zxing', what: 'spirals of 8 x 120 and 8 x 144', why: 'a spiral moves modules by half a gap, which the flattest symbols do not allow it',
    when: ({ job, answer, theirs }) => job.pattern === 5 && answer.rows === 8 && answer.columns >= 120 && theirs === 'nothing' },
];

const MOST_OF_GS1_128 = 48;

export const GS1_DIFFERENCES = [
  { judge: 'bwip-js', what: 'GS1-128 of more than 48 characters', why: 'the GS1 General Specifications allow 48: refused',
    when: (one) => one.job.symbology === 5 && one.data.length > MOST_OF_GS1_128 && isRefusedAs(one, TOO_LONG) },
  { judge: 'bwip-js, size', what: 'a smaller GS1 DataMatrix', why: 'as above',
    when: ({ isSmaller }) => isSmaller },
];
