// All words of the interface, for translation. Keep this file ASCII: pages have various character
// sets, and a script is read in that of its page. Write \u escapes for other letters.
(function (nav) {
  'use strict';

  nav.interfaceWords = {
    skip: 'Skip to content',
    contents: 'Contents',
    search: 'Search',
    searchHint: 'Search (press /)',
    results: 'Search results',
    theme: 'Theme',
    breadcrumb: 'Breadcrumb',
    previous: (title) => `Previous: ${title}`,
    next: (title) => `Next: ${title}`,
    searching: 'Searching\u2026',
    noResults: 'No results',
    oneResult: '1 result',
    someResults: (count) => `${count} results`,
    manyResults: (count) => `More than ${count} results`,
    typeMore: 'There may be more: type more letters',
    pageText: 'In the text of the page',
    noIndex: 'The search index cannot be read',
    loading: '\u2026',
  };
})((globalThis.repNavigator ??= {}));
