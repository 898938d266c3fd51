# shellcheck shell=bash
# Sourced by tests: a Slurm cluster of this machine alone, as its user and without systemd.
#   start_cluster FOLDER   makes one; from then on the commands of Slurm talk to it
#   stop_cluster           ends it; to be called however a test ends
# The path of the folder must be short enough for a socket, and without blanks.

PATH=$PATH:/usr/sbin
cluster_daemons=()

# free_ports: two ports that nobody listens on.
free_ports() {
  python3 -c '
import socket
sockets = [socket.socket() for _ in range(2)]
for each in sockets:
    each.bind(("127.0.0.1", 0))
print(*(each.getsockname()[1] for each in sockets))'
}

# write_configuration FOLDER: of one node that runs two tasks at a time, whatever the machine has.
write_configuration() {
  local folder=$1 name=${HOSTNAME%%.*} user controller_port node_port
  user=$(id -un)
  read -r controller_port node_port < <(free_ports)
  cat >"$folder/slurm.conf" <<END
ClusterName=vorlane
SlurmctldHost=$name(127.0.0.1)
SlurmctldPort=$controller_port
SlurmdPort=$node_port
SlurmUser=$user
SlurmdUser=$user
AuthType=auth/munge
AuthInfo=socket=$folder/munge.socket
CredType=cred/munge
StateSaveLocation=$folder/state
SlurmdSpoolDir=$folder/spool
SlurmctldPidFile=$folder/slurmctld.pid
SlurmdPidFile=$folder/slurmd.pid
SlurmctldLogFile=$folder/slurmctld.log
SlurmdLogFile=$folder/slurmd.log
SlurmdParameters=config_overrides
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
MpiDefault=none
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
SchedulerParameters=sched_min_interval=0,batch_sched_delay=0,bf_interval=1
SelectType=select/cons_tres
SelectTypeParameters=CR_Core_Memory
KillWait=2
ReturnToService=2
NodeName=$name NodeAddr=127.0.0.1 CPUs=2 RealMemory=4096
PartitionName=all Nodes=ALL Default=YES State=UP
END
}

# start_daemon COMMAND...: in the foreground of its own, so that its process id is the one to end.
start_daemon() {
  "$@" </dev/null >>"$cluster_folder/daemons.log" 2>&1 &
  cluster_daemons+=($!)
}

# wait_until SECONDS COMMAND...: fails if the command has not succeeded by then.
wait_until() {
  local end=$((SECONDS + $1))
  shift
  until "$@" >/dev/null 2>&1; do
    ((SECONDS < end)) || return 1
    sleep 0.1
  done
}

node_is_idle() { [[ $(sinfo -h -o %T) == idle ]]; }

start_cluster() {
  cluster_folder=$1
  mkdir -p "$cluster_folder/state" "$cluster_folder/spool"
  write_configuration "$cluster_folder"
  (umask 077 && head -c 1024 /dev/urandom >"$cluster_folder/munge.key")
  unset "${!SLURM_@}" "${!SBATCH_@}" "${!SQUEUE_@}"
  export SLURM_CONF=$cluster_folder/slurm.conf
  start_daemon munged --force --foreground --socket="$cluster_folder/munge.socket" \
    --key-file="$cluster_folder/munge.key" --pid-file="$cluster_folder/munged.pid" \
    --log-file="$cluster_folder/munged.log" --seed-file="$cluster_folder/munged.seed"
  wait_until 10 test -S "$cluster_folder/munge.socket" || return 1
  start_daemon slurmctld -D -i
  start_daemon slurmd -D
  wait_until 60 node_is_idle
}

stop_cluster() {
  local daemon
  if ((${#cluster_daemons[@]})); then
    scancel --me 2>/dev/null || true
    wait_until 10 node_is_idle || true  # the daemons of single jobs have ended then
  fi
  for daemon in "${cluster_daemons[@]}"; do kill "$daemon" 2>/dev/null || true; done
  for daemon in "${cluster_daemons[@]}"; do wait "$daemon" 2>/dev/null || true; done
  cluster_daemons=()
}
