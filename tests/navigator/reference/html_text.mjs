// From HTML to text, for entries and for pages.

const named = { lt: '<', gt: '>', amp: '&', quot: '"', apos: "'", nbsp: '\u00a0' };

function numbered(code) {
  const isCharacter = code > 0 && code <= 0x10ffff && (code < 0xd800 || code > 0xdfff);
  return isCharacter ? String.fromCodePoint(code) : '\ufffd';
}

export const decodeReferences = (html) =>
  html.replace(/&(?:(lt|gt|amp|quot|apos|nbsp)|#([0-9]+)|#[xX]([0-9a-fA-F]+));/g, (_, name, decimal, hex) =>
    name !== undefined ? named[name] : numbered(decimal !== undefined ? Number(decimal) : parseInt(hex, 16)),
  );

const longestText = 200;

export function entryText(html) {
  const text = decodeReferences(html.replaceAll('<BR>\n', ' '))
    .toWellFormed()
    .replace(/[\u0000-\u0020\u007f\u00a0]+/g, ' ')
    .replace(/^ | $/g, '');
  const characters = [...text];
  return characters.length <= longestText ? text : `${characters.slice(0, longestText - 1).join('')}\u2026`;
}

const tags =
  /<!--[^]*?(?:-->|$)|<(script|style)\b[^]*?(?:<\/\1\b[^>]*(?:>|$)|$)|<[!/][^>]*(?:>|$)|<[a-z?](?:[^>"']|"[^"]*(?:"|$)|'[^']*(?:'|$))*(?:>|$)/gi;

// The texts between the tags after <BODY>, separated by line feeds.
export function pageText(html) {
  const body = /<body(?:[^>"']|"[^"]*"|'[^']*')*>/i.exec(html);
  const text = body === null ? '' : html.slice(body.index + body[0].length);
  return decodeReferences(text.replace(tags, '\n'));
}
