// The page's side of the engine's worker: one request at a time, answered
// in order; a request that runs past the time limit ends the worker, and a
// new one is started for the next request.
export class Engine {
  constructor() {
    this.nextId = 1;
    this.start();
  }

  start() {
    this.worker = new Worker('worker.js');
    this.ready = new Promise((resolve) => {
      this.worker.addEventListener('message', (event) => {
        if (event.data.kind === 'ready') resolve();
      });
    });
    this.pending = new Map();
    this.worker.addEventListener('message', (event) => {
      const entry = this.pending.get(event.data.id);
      if (!entry) return;
      this.pending.delete(event.data.id);
      clearTimeout(entry.timer);
      entry.resolve(event.data);
    });
    this.worker.addEventListener('error', (event) => this.fail(`The engine stopped: ${event.message || 'unknown error'}`));
  }

  // Rejects everything pending and starts a fresh worker.
  fail(message, timedOut = false) {
    this.worker.terminate();
    const pending = [...this.pending.values()];
    this.start();
    for (const entry of pending) {
      clearTimeout(entry.timer);
      entry.reject(Object.assign(new Error(message), { timedOut }));
    }
  }

  request(message, timeLimitMs) {
    const id = this.nextId++;
    return new Promise((resolve, reject) => {
      const timer = setTimeout(() => {
        this.fail(`The translation ran longer than ${timeLimitMs / 1000} s and was stopped; the engine was restarted.`, true);
      }, timeLimitMs);
      this.pending.set(id, { resolve, reject, timer });
      // The time limit counts from when the engine is ready.
      this.ready.then(() => this.worker.postMessage({ ...message, id }));
    });
  }
}
