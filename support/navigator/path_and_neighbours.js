// The path of the current entry, and the links to the pages before and after.
(function (nav) {
  'use strict';

  const { element, interfaceWords: words } = nav;

  function showPath(container, home, path, entry, addressOf) {
    const link = (href, text) => element('li', {}, element('a', { href }, text));
    const items = [link(home.href, home.text), ...path.map((step) => link(addressOf(step), step.text))];
    if (entry !== null) items.push(element('li', { class: 'rn-here' }, entry.text));
    container.replaceChildren(element('ol', {}, ...items));
  }

  // The nearest page with an entry in a direction, or null.
  async function neighbour(entries, page, step) {
    for (let number = page + step; number >= 1 && number <= entries.set.pages; number += step) {
      const id = await entries.firstOfPage(number);
      if (id !== null) return entries.get(id);
    }
    return null;
  }

  // A page is reached at its top, not at the anchor of its first entry.
  const pageOf = (address) => address.split('#')[0];

  function neighbourLink(kind, label, entry, addressOf) {
    const properties = {
      class: `rn-neighbour rn-${kind}`,
      href: pageOf(addressOf(entry)),
      rel: kind,
      'aria-label': label(entry.text),
    };
    return element('a', properties, element('span', { class: 'rn-text' }, entry.text));
  }

  // From a page that is not a detail page, the next one is the first.
  async function showNeighbours(container, entries, page, addressOf) {
    const previous = page === null ? null : await neighbour(entries, page, -1);
    const next = await neighbour(entries, page ?? 0, 1);
    const links = [];
    if (previous !== null) links.push(neighbourLink('prev', words.previous, previous, addressOf));
    if (next !== null) links.push(neighbourLink('next', words.next, next, addressOf));
    container.replaceChildren(...links);
  }

  nav.pathAndNeighbours = { showPath, showNeighbours };
})((globalThis.repNavigator ??= {}));
