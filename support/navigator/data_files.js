// Files of data. They are scripts, since browsers do not let a page from a file: address fetch
// anything; each hands its JSON to `repNav`.
(function (nav) {
  'use strict';

  class DataFiles {
    // `load(name)` makes the file's script run and gives a promise for its end.
    constructor(load) {
      this.load = load;
      this.texts = new Map();
      this.promises = new Map();
      this.bytesRead = 0;
    }

    // What a file calls.
    receive(name, text) {
      this.texts.set(name, text);
    }

    // The parsed data of a file. Every file is read once; one that failed may be tried again.
    get(name) {
      if (!this.promises.has(name)) {
        const promise = this.read(name);
        promise.catch(() => this.promises.delete(name));
        this.promises.set(name, promise);
      }
      return this.promises.get(name);
    }

    async read(name) {
      await this.load(name);
      const text = this.texts.get(name);
      if (text === undefined) throw new Error(`${name}.js holds no data`);
      this.texts.delete(name);
      this.bytesRead += text.length;
      return JSON.parse(text);
    }
  }

  const loadScript = (directory) => (name) =>
    new Promise((resolve, reject) => {
      const script = document.createElement('script');
      script.src = `${directory}${name}.js`;
      script.onload = () => {
        script.remove();
        resolve();
      };
      script.onerror = () => {
        script.remove();
        reject(new Error(`${script.src} cannot be read`));
      };
      document.head.append(script);
    });

  nav.DataFiles = DataFiles;
  nav.loadScript = loadScript;
})((globalThis.repNavigator ??= {}));
