// Which entry the reader is at: that of the nearest contents anchor at the fragment's target or in
// front of it, or else the page's first one.
(function (nav) {
  'use strict';

  function targetOf(fragment) {
    let name = fragment.slice(1);
    try {
      name = decodeURIComponent(name);
    } catch {
      // The fragment is not percent-encoded: it is the name itself.
    }
    if (name === '') return null;
    return document.getElementById(name) ?? document.getElementsByName(name)[0] ?? null;
  }

  const isInFront = (anchor, element) =>
    anchor === element ||
    (anchor.compareDocumentPosition(element) &
      (Node.DOCUMENT_POSITION_FOLLOWING | Node.DOCUMENT_POSITION_CONTAINED_BY)) !== 0;

  // The numbers of the contents anchors in front of an element, the nearest first.
  function anchorsInFront(element) {
    const numbers = [];
    for (const anchor of document.getElementsByTagName('a')) {
      if (!isInFront(anchor, element)) continue;
      const number = nav.place.contentsAnchor(anchor.name);
      if (number !== null) numbers.unshift(number);
    }
    return numbers;
  }

  class CurrentEntry {
    // `page` is this page's number, or null.
    constructor(entries, page) {
      this.entries = entries;
      this.page = page;
    }

    isHere({ href }) {
      return nav.place.pageNumber(new URL(href, document.baseURI).href, this.entries.set) === this.page;
    }

    // An anchor may have no entry, or one that leads to another page.
    async ofAnchors(numbers) {
      for (const number of numbers) {
        const id = await this.entries.ofAnchor(number);
        const entry = id === null ? null : await this.entries.get(id);
        if (entry !== null && this.isHere(entry)) return entry;
      }
      return null;
    }

    async first() {
      const id = this.page === null ? null : await this.entries.firstOfPage(this.page);
      return id === null ? null : this.entries.get(id);
    }

    async ofFragment(fragment) {
      const own = nav.place.contentsAnchor(fragment);
      const target = targetOf(fragment);
      const numbers = target === null ? [] : anchorsInFront(target);
      if (own !== null) numbers.unshift(own);
      return (await this.ofAnchors(numbers)) ?? this.first();
    }

    // The entry in front of an element, or null.
    ofElement(element) {
      return this.ofAnchors(anchorsInFront(element));
    }
  }

  nav.CurrentEntry = CurrentEntry;
})((globalThis.repNavigator ??= {}));
