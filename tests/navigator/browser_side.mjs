// The navigator's own files that need no page, as one object. They are classic scripts that put
// themselves into a global object.

import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { runInThisContext } from 'node:vm';

export const sourceDirectory = join(import.meta.dirname, '../../support/navigator');

export const order = readFileSync(join(sourceDirectory, 'order.txt'), 'ascii').trimEnd().split('\n');

const pure = [
  'interface_words.js', 'code_points.js', 'search_words.js', 'number_list.js', 'word_file.js',
  'memory.js', 'place.js', 'data_files.js', 'entries.js', 'query.js', 'tree_rows.js',
  'search_results.js', 'hit_marks.js',
];

for (const name of order.filter((file) => pure.includes(file))) {
  const filename = join(sourceDirectory, name);
  runInThisContext(readFileSync(filename, 'ascii'), { filename });
}

export const nav = globalThis.repNavigator;
