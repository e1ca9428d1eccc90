#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# An array of four tasks on a Slurm cluster of this machine alone, one of them killed and made up for:
# the sum is that of one process. Ends with 77 where Slurm is not installed or cannot be started.
#   slurm_trial.sh VELQUON-EVENTS ARRAY-SCRIPT
set -euo pipefail
export LC_ALL=C.UTF-8

program=$(realpath "$1") array=$(realpath "$2")
export PATH=$PATH:/usr/sbin:/sbin
for tool in munged slurmctld slurmd sbatch squeue sinfo; do
  command -v "$tool" >/dev/null || { echo "skipped: $tool is not installed"; exit 77; }
done
[ "$(id -u)" -eq 0 ] || { echo "skipped: slurmd wants to be root"; exit 77; }

d=$(mktemp -d /tmp/velquon-slurm-XXXXXX)
mkdir -m 700 "$d/munge"
mkdir "$d/state" "$d/spool" "$d/log" "$d/bin" "$d/runs" "$d/alone"
ln -s "$program" "$d/bin/velquon-events"
export PATH=$d/bin:$PATH SLURM_CONF=$d/slurm.conf

end_daemons() {
  local name
  for name in slurmd slurmctld munged; do
    [ ! -s "$d/$name.pid" ] || kill "$(cat "$d/$name.pid")" 2>/dev/null || true
  done
  sleep 1
  rm -rf "$d"
}
trap end_daemons EXIT

die() {
  echo "FAILED: $*" >&2
  tail -n 20 "$d"/log/* "$d"/*.out >&2 2>/dev/null || true
  exit 1
}

# within SECONDS COMMAND...: waits until the command says yes.
within() {
  local end=$((SECONDS + $1))
  shift
  until "$@"; do
    [ $SECONDS -lt $end ] || return 1
    sleep 0.1
  done
}

start_cluster() {
  local port=$((20000 + RANDOM % 20000 / 2 * 2)) host
  host=$(hostname -s)
  cat >"$SLURM_CONF" <<CONF
ClusterName=velquon
SlurmctldHost=$host(127.0.0.1)
SlurmctldPort=$port
SlurmdPort=$((port + 1))
SlurmUser=root
AuthType=auth/munge
CredType=cred/munge
AuthInfo=socket=$d/munge.socket
CommunicationParameters=NoCtldInAddrAny,NoInAddrAny
StateSaveLocation=$d/state
SlurmdSpoolDir=$d/spool
SlurmctldPidFile=$d/slurmctld.pid
SlurmdPidFile=$d/slurmd.pid
SlurmctldLogFile=$d/log/slurmctld
SlurmdLogFile=$d/log/slurmd
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
MpiDefault=none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
ReturnToService=2
NodeName=$host NodeAddr=127.0.0.1 CPUs=2
PartitionName=all Nodes=ALL Default=YES
CONF
  head -c 1024 /dev/urandom >"$d/munge/key"
  chmod 600 "$d/munge/key"
  munged --force --socket="$d/munge.socket" --key-file="$d/munge/key" --pid-file="$d/munged.pid" \
    --log-file="$d/munge/log" --seed-file="$d/munge/seed"
  slurmctld -i
  slurmd
  within 60 is_idle || die "the cluster does not start"
}
is_idle() { [ "$(sinfo -h -o %T 2>/dev/null)" = idle ]; }

options=(--type pi0 --energy 100 --events 400000 --format summary)
submit() {
  sbatch --parsable --array=1-4 --output="$d/task-%A-%a.out" "$array" "${options[@]}" \
    --output "$d/runs" >/dev/null
}
no_task_left() { [ -z "$(squeue -h 2>/dev/null)" ] && [ -z "$(processes_of '')" ]; }

# The processes of the tasks, or of one task's seed.
processes_of() {
  pgrep -f -- "^velquon-events .*--output $d/runs --seeds ${1:-}" || true
}
runs_seed_2() { [ -n "$(processes_of 2-2)" ]; }

start_cluster
submit
within 60 runs_seed_2 || die "the second task does not start"
# shellcheck disable=SC2046
kill -KILL $(processes_of 2-2) || die "the second task was over too soon"
within 240 no_task_left || die "the tasks do not end"
there=$(ls -A "$d/runs" | tr '\n' ' ')
[ "$there" = "seed-1.json seed-3.json seed-4.json " ] || die "with one task killed there are: $there"

stamps=$(stat -c %Y.%i "$d"/runs/seed-[134].json)
submit
within 240 no_task_left || die "the tasks do not end the second time"
there=$(ls -A "$d/runs" | tr '\n' ' ')
[ "$there" = "seed-1.json seed-2.json seed-3.json seed-4.json " ] || die "resumed, there are: $there"
[ "$stamps" = "$(stat -c %Y.%i "$d"/runs/seed-[134].json)" ] || die "complete files were made again"

velquon-events "${options[@]}" --seeds 1-4 --output "$d/alone"
velquon-events --add-summaries "$d"/runs/seed-?.json >"$d/sum"
velquon-events --add-summaries "$d"/alone/seed-?.json >"$d/sum-alone"
cmp "$d/sum" "$d/sum-alone" || die "the sums differ"
grep -q '^  "events": 1600000,$' "$d/sum" || die "not all events are in the sum"
echo "four tasks, one killed and made up for: the sum is that of one process"
