# Controller, worker, main and the bundle are added here.
