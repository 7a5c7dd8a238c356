# SPDX-License-Identifier: MIT
"""Configures and builds a CMake project in a fresh folder, for a test."""
import pathlib
import shutil
import subprocess


def fresh_folder(path):
    path = pathlib.Path(path)
    shutil.rmtree(path, ignore_errors=True)
    path.mkdir(parents=True)
    return path


def _run(*command):
    run = subprocess.run([str(word) for word in command], text=True, stdout=subprocess.PIPE,
                         stderr=subprocess.STDOUT)
    if run.returncode != 0:
        raise AssertionError(f"{' '.join(run.args)}\n{run.stdout}")
    return run.stdout


def build(source, binary, arguments, target, *definitions):
    """Builds a target as the test's arguments say: build_type, compiler and launcher.

    Returns everything that CMake, the compiler and the linker said.
    """
    options = [f"-DCMAKE_BUILD_TYPE={arguments.build_type}",
               f"-DCMAKE_CXX_COMPILER={arguments.compiler}",
               f"-DCMAKE_CXX_COMPILER_LAUNCHER={arguments.launcher}",
               "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON"]
    said = _run("cmake", "-G", "Ninja", "-S", source, "-B", binary, *options,
                *(f"-D{definition}" for definition in definitions))
    return said + _run("cmake", "--build", binary, "--target", target)
