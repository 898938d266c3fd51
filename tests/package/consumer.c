#include <vorlane_c.h>

#include <stdio.h>

int main(void) {
  const uint32_t from[] = {1, 2, 3}, to[] = {2, 3, 1};
  vorlane_links links = {3, 3, from, to, NULL, NULL, NULL, NULL};
  vorlane_network *network;
  vorlane_results *results;
  vorlane_level level;
  if (vorlane_network_from_links(&links, NULL, &network) ||
      vorlane_find(network, NULL, NULL, &results) || vorlane_results_level(results, 3, &level)) {
    puts(vorlane_last_failure(NULL));
    return 1;
  }
  printf("%s: %u community\n", vorlane_version(), (unsigned)level.members.size);
  vorlane_results_free(results);
  vorlane_network_free(network);
  return vorlane_abi_version() != VORLANE_ABI_VERSION;
}
