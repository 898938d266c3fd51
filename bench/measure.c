/* Runs a command and writes what it cost: measure REPORT COMMAND [ARGUMENTS].
 *
 * REPORT receives one line: processor seconds (user and system), wall clock seconds, peak resident
 * memory in KB. The exit code is that of the command, 128 plus the signal if a signal ended it.
 * A program of its own, since the peak that a process reports includes that of the one which
 * started it, and an interpreter's is larger than that of many a run measured here. */
#define _GNU_SOURCE
#include <stdio.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

static double Seconds(struct timeval t) { return (double)t.tv_sec + (double)t.tv_usec * 1e-6; }

static double Now(void) {
  struct timespec t;
  clock_gettime(CLOCK_MONOTONIC, &t);
  return (double)t.tv_sec + (double)t.tv_nsec * 1e-9;
}

int main(int argc, char** argv) {
  if (argc < 3) {
    fprintf(stderr, "usage: %s REPORT COMMAND [ARGUMENTS]\n", argv[0]);
    return 2;
  }
  const double start = Now();
  const pid_t child = fork();
  if (child == 0) {
    execvp(argv[2], argv + 2);
    perror(argv[2]);
    _exit(127);
  }
  int status;
  struct rusage used;
  if (child < 0 || wait4(child, &status, 0, &used) != child) {
    perror(argv[0]);
    return 2;
  }
  FILE* report = fopen(argv[1], "w");
  if (!report ||
      fprintf(report, "%.6f %.6f %ld\n", Seconds(used.ru_utime) + Seconds(used.ru_stime),
              Now() - start, used.ru_maxrss) < 0 ||
      fclose(report) != 0) {
    perror(argv[1]);
    return 2;
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}
