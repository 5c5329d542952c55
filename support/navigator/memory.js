// What the navigator remembers. A browser may deny storage to pages from file: addresses, or
// altogether; then everything works but the remembering.
(function (nav) {
  'use strict';

  function attempt(action) {
    try {
      return action();
    } catch {
      return null;
    }
  }

  class Memory {
    // `storage` is a function: the very mention of localStorage may throw.
    constructor(storage, prefix) {
      this.storage = storage;
      this.prefix = prefix;
    }

    get(key) {
      return attempt(() => JSON.parse(this.storage().getItem(this.prefix + key)));
    }

    set(key, value) {
      attempt(() => this.storage().setItem(this.prefix + key, JSON.stringify(value)));
    }

    forget(key) {
      attempt(() => this.storage().removeItem(this.prefix + key));
    }
  }

  nav.Memory = Memory;
  // For as long as the browser keeps it, for all sets of this origin.
  nav.lasting = new Memory(() => localStorage, 'repNav ');
  // For this tab and this set: several sets may share an origin.
  nav.perTab = (set) => new Memory(() => sessionStorage, `repNav ${set} `);
})((globalThis.repNavigator ??= {}));
