// SPDX-License-Identifier: MIT
//
// Every record by value through koffi, both ways, and texts released. The argument is the folder of
// the example, with koffi installed in it.
'use strict';

const assert = require('assert');
const fs = require('fs');
const path = require('path');

const example = path.resolve(process.argv[2]);
const koffi = require(require.resolve('koffi', { paths: [example] }));
const almara = require(path.join(example, 'almara.js'));

const [lowest, highest] = [-(2 ** 31), 2 ** 31 - 1];
const extremes = [lowest, highest, -1, 0, 1, 0x12345678];

// Distinct values in all fields, an extreme one in one of them.
function* samples(count) {
  for (let position = 0; position < count; position++) {
    for (const extreme of extremes) {
      yield Array.from({ length: count }, (_, index) =>
        index === position ? extreme : (index + 1) * 0x01010101);
    }
  }
}

function toRecord(fields, values) {
  return Object.fromEntries(fields.map((field, index) => [field, values[index]]));
}

function testRecords() {
  const library = koffi.load('libecho.so');
  const records = JSON.parse(fs.readFileSync(process.env.ECHO_INTERFACE));
  assert(Object.keys(records).length >= 4);
  for (const [name, { fields, ...prototypes }] of Object.entries(records)) {
    assert.strictEqual(almara.records[name], fields.join(' '));
    const echo = library.func(prototypes.echo);
    const make = library.func(prototypes.make);
    const field = library.func(prototypes.field);
    for (const values of samples(fields.length)) {
      const record = toRecord(fields, values);
      assert.deepStrictEqual({ ...make(...values) }, record);
      assert.deepStrictEqual({ ...echo(lowest, record, highest) }, record);
      assert.deepStrictEqual(values.map((_, index) => field(record, index)), values);
    }
  }
}

function testEngine(engine) {
  assert.strictEqual(engine.native_add(highest, 1), lowest);
  for (const values of samples(4)) {
    const date = toRecord(['year', 'month', 'day', 'dayOfWeek'], values);
    assert.deepStrictEqual({ ...engine.CreateSolarDate(...values) }, date);
  }
  for (const hide of [true, false]) {
    engine.SetHideBreakDay(hide);
    assert.strictEqual(engine.GetHideBreakDay(), hide);
  }
}

function testTextsAreReleased(engine) {
  const sizes = Array.from({ length: 10 }, (_, index) => [`field${index}`, 'size_t']);
  const usage = koffi.load(null).func('mallinfo2', koffi.struct(Object.fromEntries(sizes)), []);
  assert.match(engine.GetConfigKey(), /^1-5-7-1-1-1-\d/);
  // Node.js allocates as well, now and then; texts that nobody releases add up in every round.
  const growths = Array.from({ length: 5 }, () => {
    const before = usage().field7;
    for (let call = 0; call < 20000; call++) {
      engine.GetConfigKey();
    }
    return usage().field7 - before;
  });
  assert(Math.min(...growths) < 200000, 'the text of GetConfigKey() is not released');
}

const engine = almara.load();
testRecords();
testEngine(engine);
testTextsAreReleased(engine);
console.log('passed');
