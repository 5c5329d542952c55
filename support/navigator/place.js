// Addresses: where the document set lies, which of its pages this one is.
(function (nav) {
  'use strict';

  function lastSegment(address) {
    const segment = new URL(address).pathname.split('/').pop();
    try {
      return decodeURIComponent(segment);
    } catch {
      return segment;
    }
  }

  // The page's number, or null for a file that is not a detail page.
  function pageNumber(address, { name, extension }) {
    const file = lastSegment(address);
    if (!file.startsWith(name) || !file.endsWith(extension)) return null;
    const digits = file.slice(name.length, file.length - extension.length);
    if (digits === '') return file.length < name.length + extension.length ? null : 1;
    return /^[1-9][0-9]{0,9}$/.test(digits) && digits !== '1' ? Number(digits) : null;
  }

  // The href with a query in front of its fragment.
  function withQuery(href, find) {
    const [file, ...fragment] = href.split('#');
    return [`${file}?find=${encodeURIComponent(find)}`, ...fragment].join('#');
  }

  nav.place = {
    // `script` is the address of navigator.js.
    rootOf: (script) => new URL('..', script).href,
    pageNumber,
    withQuery,
    findOf: (address) => new URL(address).searchParams.get('find') ?? '',
    contentsAnchor: (fragment) => {
      const digits = /^#?toc([1-9][0-9]{0,9})$/.exec(fragment)?.[1];
      return digits === undefined ? null : Number(digits);
    },
  };
})((globalThis.repNavigator ??= {}));
