// Marks what a search found on the page that it led to.
(function (nav) {
  'use strict';

  const mostMarks = 1000;

  // The places in a text where words begin with one of the query's: [start, end], merged.
  function hitsIn(text, words) {
    const hits = [];
    for (const { word, start, end } of nav.searchWords.placedWords(text)) {
      if (!words.some((wanted) => word.startsWith(wanted))) continue;
      const last = hits.at(-1);
      if (last !== undefined && start <= last[1]) last[1] = Math.max(last[1], end);
      else hits.push([start, end]);
    }
    return hits;
  }

  function textNodesOf(root) {
    const walker = document.createTreeWalker(root, NodeFilter.SHOW_TEXT);
    const nodes = [];
    while (walker.nextNode()) {
      if (!walker.currentNode.parentElement.closest('script, style, textarea')) {
        nodes.push(walker.currentNode);
      }
    }
    return nodes;
  }

  // From the back, so that the places in front stay right.
  function markNode(node, hits) {
    for (const [start, end] of hits.reverse()) {
      const hit = node.splitText(start);
      hit.splitText(end - start);
      const mark = nav.element('mark', { class: 'rn-hit' });
      hit.replaceWith(mark);
      mark.append(hit);
    }
  }

  function mark(root, query) {
    const words = nav.searchWords.queryWords(query);
    let left = words.length === 0 ? 0 : mostMarks;
    for (const node of textNodesOf(root)) {
      if (left <= 0) break;
      const hits = hitsIn(node.data, words).slice(0, left);
      left -= hits.length;
      markNode(node, hits);
    }
  }

  function unmark(root) {
    for (const mark of root.querySelectorAll('mark.rn-hit')) {
      const parent = mark.parentNode;
      mark.replaceWith(...mark.childNodes);
      parent.normalize();
    }
  }

  nav.hitMarks = { hitsIn, mark, unmark };
})((globalThis.repNavigator ??= {}));
