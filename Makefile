.PHONY: run test format

run:
	./run.sh

test:
	./test.sh

format:
	git ls-files '*.h' '*.cpp' '*.c' | xargs clang-format -i
