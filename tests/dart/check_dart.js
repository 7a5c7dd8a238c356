// SPDX-License-Identifier: MIT
//
// node check_dart.js <root>: reads the Dart files of the package without a Dart SDK. Prints a line
// for each place where the syntax is wrong, an import leads nowhere, a class declares a member twice,
// or a member of the package is used that it does not have, or with arguments that it does not take.

import fs from 'node:fs';
import path from 'node:path';
import { Language, Parser } from 'web-tree-sitter';

const root = process.argv[2];
const sdkLibraries = ['dart:ffi', 'dart:io'];
const objectMembers = ['toString', 'hashCode', 'runtimeType'];

// What the names of variables stand for: the class whose members they have, by folder.
const receivers = {
  lib: {
    _c: 'AlmaraBindings', engine: 'AlmaraBindings', bindings: 'AlmaraBindings',
    cell: 'tagCalendarCell', span: 'tagWeekNumberSpan',
  },
  application: {
    engine: 'AlmaraEngine', almanac: 'Almanac', board: 'Board', _board: 'Board', cell: 'BoardCell', week: 'WeekSpan',
    notes: 'DayNotes', date: 'CalendarDate', lunar: 'LunarDate', kind: 'CellKind',
  },
};

let problems = 0;
let uses = 0;

function report(file, node, problem) {
  problems++;
  console.log(`${file}:${node.startPosition.row + 1}: ${problem}`);
}

function* nodesOf(node, type) {
  if (!type || node.type === type) {
    yield node;
  }
  for (const child of node.children) {
    yield* nodesOf(child, type);
  }
}

const named = (node, type) => node.namedChildren.filter((child) => child.type === type);

function dartFiles(folder) {
  return fs.readdirSync(path.join(root, folder), { recursive: true, encoding: 'utf8' })
    .filter((file) => file.endsWith('.dart') && !/(^|\/)(build|\.dart_tool|linux)\//.test(file))
    .map((file) => path.join(folder, file)).sort();
}

// The Dart snippets of a document as one file each, their statements in a function.
function snippets(document) {
  const text = fs.readFileSync(path.join(root, document), 'utf8');
  return [...text.matchAll(/^ *```dart\n(.*?)^ *```$/gms)].map(([, code], index) => {
    const isImport = (line) => line.startsWith('import ');
    const lines = code.split('\n');
    return [`${document}, Dart snippet ${index + 1}`, [...lines.filter(isImport), 'void main() {',
      ...lines.filter((line) => !isImport(line)), '}\n'].join('\n')];
  });
}

function checkSyntax(file, tree) {
  for (const node of nodesOf(tree.rootNode)) {
    if (node.isError || node.isMissing) {
      report(file, node, `syntax: ${node.isMissing ? 'missing' : ''} ${node.text.slice(0, 40)}`);
    }
  }
}

// The packages that a pubspec.yaml names, in lib/ without those for development.
function dependencies(pubspec, file) {
  const text = fs.readFileSync(path.join(root, pubspec), 'utf8');
  const sections = file.startsWith('lib/') || file.startsWith('example/lib/')
    ? /^dependencies:\n((?: .*\n)*)/m : /^(?:dev_)?dependencies:\n((?:(?: .*|dev_.*)?\n)*)/m;
  return [...text.match(sections)[1].matchAll(/^ {2}(\w+):/gm)].map((match) => match[1]);
}

function checkImports(file, tree) {
  const pubspec = file.startsWith('example/') ? 'example/pubspec.yaml' : 'pubspec.yaml';
  for (const node of nodesOf(tree.rootNode, 'uri')) {
    const uri = node.text.slice(1, -1);
    const [, name, rest] = uri.match(/^package:(\w+)\/(.*)$/) ?? [];
    const own = { almara: 'lib', almara_example: 'example/lib' }[name];
    const target = own ? path.join(own, rest) : path.join(path.dirname(file), uri);
    const found = uri.startsWith('dart:') ? sdkLibraries.includes(uri)
      : name && !own ? dependencies(pubspec, file).includes(name)
        : fs.existsSync(path.join(root, target));
    if (!found) {
      report(file, node, `no such import: ${uri}`);
    }
  }
}

// How many positional arguments a declaration takes, and the names of the others.
function parametersOf(list) {
  const optional = list ? named(list, 'optional_formal_parameters') : [];
  const required = list ? named(list, 'formal_parameter').length : 0;
  const others = optional.flatMap((each) => named(each, 'formal_parameter'));
  if (optional.some((each) => each.text.startsWith('{'))) {
    const names = others.map((each) => each.namedChildren.at(-1).text.replace('this.', ''));
    return { least: required, most: required, names };
  }
  return { least: required, most: required + others.length, names: [] };
}

function memberOf(signature) {
  const names = named(signature, 'identifier').map((each) => each.text);
  const parameters = parametersOf(named(signature, 'formal_parameter_list')[0]);
  if (/constructor/.test(signature.type)) {
    return [names[1] ?? 'new', parameters];
  }
  return [names[0], signature.type === 'function_signature' ? parameters : null];
}

// Class, enumeration or extension: member: its parameters, or null for what is not called.
function declaredMembers(trees) {
  const classes = {};
  for (const [file, tree] of trees) {
    for (const node of nodesOf(tree.rootNode)) {
      if (!/^(class|enum|extension)_(definition|declaration)$/.test(node.type)) {
        continue;
      }
      const names = [...named(node, 'identifier'), ...named(node, 'type_identifier')];
      const owner = /^extension/.test(node.type) ? names.at(-1).text : names[0].text;
      const members = (classes[owner] ??= {});
      const declared = new Set();
      for (const part of nodesOf(node)) {
        if (/^(function|getter|setter|(constant_)?(redirecting_)?constructor)_signature$/
          .test(part.type)) {
          const [name, parameters] = memberOf(part);
          if (declared.has(`${part.type} ${name}`)) {
            report(file, part, `${owner} declares ${name} twice`);
          }
          declared.add(`${part.type} ${name}`);
          members[name] = parameters;
        } else if (part.type === 'enum_constant') {
          members[part.namedChildren.find((child) => child.type === 'identifier').text] = null;
        } else if (/^(initialized_identifier|static_final_declaration)$/.test(part.type)
            || (part.type === 'identifier' && part.parent.type === 'identifier_list')
            || (part.type === 'identifier' && part.parent.type === 'declaration')) {
          members[part.text.split(/\W/)[0]] = null;
        }
      }
      if (/^enum/.test(node.type)) {
        Object.assign(members, { values: null, name: null, index: null });
      }
    }
  }
  return classes;
}

// A member of a class at a place in a file, with its node of arguments if it is called.
function checkUse(file, node, [owner, members], member, list) {
  uses++;
  const parameters = members[member];
  if (parameters === undefined && !objectMembers.includes(member)) {
    report(file, node, `${owner} has no ${member}`);
  }
  if (!parameters || !list) {
    return;
  }
  const count = named(list, 'argument').length;
  if (count < parameters.least || count > parameters.most) {
    report(file, node, `${owner}.${member} does not take ${count} arguments`);
  }
  for (const argument of named(list, 'named_argument')) {
    const name = argument.namedChildren[0].text.replace(':', '').trim();
    if (!parameters.names.includes(name)) {
      report(file, node, `${owner}.${member} takes no argument ${name}`);
    }
  }
}

const identifierIn = (node) => [...nodesOf(node, 'identifier')][0];
const argumentsIn = (node) => node && named(named(node, 'argument_part')[0] ?? node, 'arguments')[0];

function checkMembers(file, tree, classes) {
  const known = receivers[file.startsWith('lib/') ? 'lib' : 'application'];
  const ownerOf = (name) => {
    const owner = Object.hasOwn(known, name) ? known[name] : name;
    return Object.hasOwn(classes, owner) ? [owner, classes[owner]] : null;
  };
  // first.second(arguments).third..fourth
  for (const first of nodesOf(tree.rootNode, 'identifier')) {
    let base = first.text;
    for (let next = first.nextNamedSibling; next; next = next.nextNamedSibling) {
      const owner = ownerOf(base);
      if (next.type === 'cascade_section') {
        if (owner) {
          checkUse(file, next, owner, identifierIn(next).text, argumentsIn(next));
        }
      } else if (next.type !== 'selector') {
        break;
      } else if (argumentsIn(next)) {
        if (owner?.[1].new && base === first.text) {
          checkUse(file, first, owner, 'new', argumentsIn(next));
        }
      } else if (/^\??\./.test(next.text)) {
        if (owner) {
          checkUse(file, next, owner, identifierIn(next).text, argumentsIn(next.nextNamedSibling));
        }
        base = identifierIn(next).text;
      } else {
        base = '';
      }
    }
  }
  for (const node of nodesOf(tree.rootNode, 'const_object_expression')) {
    const owner = ownerOf(named(node, 'type_identifier')[0].text);
    if (owner) {
      checkUse(file, node, owner, named(node, 'identifier')[0]?.text ?? 'new',
        argumentsIn(node));
    }
  }
}

// Names such as eFestivalSolarNone, which only the bindings declare.
function checkConstants(file, tree, constants) {
  for (const node of nodesOf(tree.rootNode, 'identifier')) {
    if (/^e[A-Z]\w+$/.test(node.text) && !constants.has(node.text)) {
      report(file, node, `no constant ${node.text}`);
    }
  }
}

await Parser.init();
const grammar = new URL(import.meta.resolve('@lumis-sh/wasm-dart/tree-sitter-dart.wasm'));
const parser = new Parser();
parser.setLanguage(await Language.load(grammar.pathname));

const sources = ['lib', 'test', 'example'].flatMap(dartFiles).map((file) =>
  [file, fs.readFileSync(path.join(root, file), 'utf8')]);
sources.push(...['README.md', 'docs/flutter.md'].flatMap(snippets));
const trees = new Map(sources.map(([file, text]) => [file, parser.parse(text)]));
const classes = declaredMembers(trees);
const bindings = trees.get('lib/src/almara_bindings.dart').rootNode;
const constants = new Set([...bindings.text.matchAll(/^const int (\w+)/gm)].map((m) => m[1]));

for (const [file, tree] of trees) {
  checkSyntax(file, tree);
  checkImports(file, tree);
  checkConstants(file, tree, constants);
  if (file !== 'lib/src/almara_bindings.dart') {
    checkMembers(file, tree, classes);
  }
}
console.log(`${trees.size} files, ${uses} uses of members, ${problems} problems`);
process.exitCode = problems ? 1 : 0;
