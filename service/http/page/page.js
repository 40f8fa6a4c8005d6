// The page: every view is drawn from the members' own answers, fetched
// through /api/member/, and drawn again whenever an event says the service
// changed.
"use strict";

const token = document.querySelector('meta[name="zunde-token"]').content;
const kSlot = 1800;          // a guide column: half an hour, in seconds
const kSlots = 7;            // one before now, six after
const kGuideRows = 200;      // more channels than this are left out of the grid
const kActivities = [0, 1, 2, 3, 4];

function say(text) { document.getElementById("status").textContent = text; }

// A member's answer; a refusal throws with its reason.
async function member(name, request = {}, change = false) {
  const text = JSON.stringify(request);
  const reply = change
    ? await fetch("/api/member/" + name, { method: "POST", body: text, headers: { "X-Zunde-Token": token } })
    : await fetch("/api/member/" + name + "?request=" + encodeURIComponent(text));
  const answer = await reply.json();
  if (!reply.ok || answer.error) throw new Error(name + ": " + (answer.error || reply.statusText));
  return answer;
}

// el("td", {className: "x"}, "text", child, ...)
function el(tag, props = {}, ...children) {
  const node = Object.assign(document.createElement(tag), props);
  node.append(...children);
  return node;
}

function clock(seconds) {
  return new Date(seconds * 1000).toLocaleTimeString([], { hour: "2-digit", minute: "2-digit" });
}

// A block of the grid at its place within [from, from + span).
function block(className, start, length, from, span, ...children) {
  const left = Math.max(start, from), right = Math.min(start + length, from + span);
  const node = el("div", { className }, ...children);
  // Through the style object: the page's policy forbids style attributes.
  node.style.left = (100 * (left - from) / span) + "%";
  if (length) node.style.width = (100 * (right - left) / span) + "%";
  return node;
}

async function drawGuide() {
  const now = Date.now() / 1000;
  const from = Math.floor(now / kSlot) * kSlot - kSlot, span = kSlots * kSlot;
  const channels = (await member("GetFullChannelList", { activityID: 0 })).channel_array || [];
  const shown = channels.slice(0, kGuideRows);
  const map = await member("GetProgramMap", {
    activityID: 0, "utc start time": from, duration: span, "genre id list": "", "rec id": "", "rep id": "",
    sourceIDArray: shown.map(c => c.str_program_source_id) });
  const programmes = new Map((map.out_mapProgramWithSourceID || []).map(e => [e.program_source_id, e.program_array]));
  const times = el("div", { className: "track" });
  for (let t = from; t < from + span; t += kSlot) times.append(block("", t, kSlot, from, span, clock(t)));
  const rows = [el("div", { className: "row times" }, el("div", {}, "now " + clock(now)), times)];
  for (const channel of shown) {
    const track = el("div", { className: "track" });
    for (const p of programmes.get(channel.str_program_source_id) || []) {
      const on = p["utc start time"] <= now && now < p["utc start time"] + p.duration;
      const node = block(on ? "programme now" : "programme", p["utc start time"], p.duration, from, span, p.title);
      node.title = p.title + ", " + clock(p["utc start time"]) + "\n" + p.desc;
      track.append(node);
    }
    track.append(block("now-line", now, 0, from, span));
    rows.push(el("div", { className: "row" },
      el("div", { className: "channel" }, el("span", { className: "number" }, channel.str_channel_number),
        el("span", { className: "name" }, channel.str_channel_name)), track));
  }
  document.getElementById("guide").replaceChildren(...rows);
  document.getElementById("guide-note").textContent = "activity 0, " + channels.length + " channels" +
    (channels.length > shown.length ? ", the first " + shown.length + " shown" : "");
}

async function drawEnvironment() {
  const env = await member("GetRemoteContentEnv");
  const pairs = [["country", env.country], ["language", env.language],
    ["recommendation type", (await member("GetRecommendTypeOption")).in_recommend_type],
    ["user id", (await member("GetPersonalUserID")).in_user_id || "(none)"]];
  document.getElementById("environment").replaceChildren(
    ...pairs.flatMap(([name, value]) => [el("dt", {}, name), el("dd", {}, String(value))]));
}

function table(headings, rows) {
  return el("table", {}, el("tr", {}, ...headings.map(h => el("th", {}, h))),
    ...rows.map(cells => el("tr", {}, ...cells.map(c => el("td", {}, String(c))))));
}

// The lists a channel is in, from its "bit set" (list 0 is the last digit).
function favouriteLists(channel) {
  const bits = channel["bit set"] || "";
  return [...bits].reverse().flatMap((bit, list) => bit === "1" ? [list] : []);
}

async function drawActivity(activity) {
  const map = (await member("GetMBRNetworkChannelMap", { activityID: activity, "query type": 0 }))["MBR channel table"] || [];
  const zip = (await member("GetZipCode", { activityID: activity }))["zip code"];
  const headEnd = (await member("GetHeadEndID", { activityID: activity }))["headend id"];
  if (!map.length && !zip && !headEnd) return [];
  const lists = kActivities.map(list => map.filter(c => favouriteLists(c).includes(list)));
  return [el("h3", {}, "activity " + activity + ": zip code " + (zip || "(none)") + ", head-end " + (headEnd || "(none)")),
    table(["major", "minor", "name", "channel id", "favourite lists"],
      map.map(c => [c.m_major, c.m_minor, c.m_name, c.m_channelID, favouriteLists(c).join(" ")])),
    ...lists.flatMap((channels, list) => channels.length
      ? [el("p", {}, "favourites " + list + ": " + channels.map(c => c.m_major + "-" + c.m_minor + " " + c.m_name).join(", "))]
      : [])];
}

async function drawSetTopBox() {
  const parts = (await Promise.all(kActivities.map(drawActivity))).flat();
  document.getElementById("set-top-box").replaceChildren(
    ...(parts.length ? parts : [el("p", {}, "No activity holds channels or settings.")]));
}

// Virtual channels are found as an application finds them: among the
// services of the broadcast navigation, those the virtual family knows.
let virtualChannels = null;
async function findVirtualChannels() {
  const services = (await member("GetRFNetworkChannelMapByGenre", { genre: "" }))["service list"] || [];
  const found = [];
  for (let i = 0; i < services.length; i += 16) {
    await Promise.all(services.slice(i, i + 16).map(s => member("GetFeaturedVirtualChannelInfo", s)
      .then(info => found.push({ id: s.TCServiceId, major: info.major, name: info.channel_name }), () => {})));
  }
  return found;
}

async function drawVirtual() {
  virtualChannels = virtualChannels || await findVirtualChannels();
  const rows = await Promise.all(virtualChannels.map(async channel => {
    const request = { TCServiceId: channel.id };
    const present = await member("GetPresentProgram", request).catch(() => ({}));
    const slot = await member("GetOnDemandIdentifier", request).catch(() => ({}));
    return [channel.major, channel.name, channel.id, present.title || "", slot.program_id ? slot.program_id.event_id : ""];
  }));
  document.getElementById("virtual").replaceChildren(rows.length
    ? table(["major", "name", "service id", "on now", "on demand"], rows) : el("p", {}, "(none)"));
}

let pending = null;
async function drawAll() {
  pending = null;
  const results = await Promise.allSettled([drawGuide(), drawEnvironment(), drawSetTopBox(), drawVirtual()]);
  const failed = results.find(r => r.status === "rejected");
  say(failed ? failed.reason.message : "");
}
// Events come in bursts; one redraw follows the burst.
function redrawSoon() { if (!pending) pending = setTimeout(drawAll, 150); }

function showEvent(event) {
  const params = [event.param1, event.param2, event.param3].join(", ");
  const line = el("li", { className: "fresh" }, new Date().toLocaleTimeString() + " ",
    el("b", { className: "event" }, String(event.event)), " ", el("span", { className: "name" }, event.name),
    " (" + params + ")");
  const list = document.getElementById("events");
  list.prepend(line);
  setTimeout(() => line.classList.remove("fresh"), 2000);
  while (list.children.length > 100) list.lastChild.remove();
}

function listen() {
  const feed = new EventSource("/api/events");
  feed.onmessage = message => { showEvent(JSON.parse(message.data)); redrawSoon(); };
  feed.addEventListener("slow", message => { document.getElementById("slow").checked = JSON.parse(message.data).slow; });
  feed.onerror = () => say("the service is not answering; waiting for it");
  feed.onopen = () => say("");
}

async function act(work) {
  try { await work(); } catch (failure) { say(failure.message); }
}

function emitRequest() {
  const number = id => Number(document.getElementById(id).value);
  const event = document.getElementById("emit-event").value.trim();
  return { event: /^-?\d+$/.test(event) ? Number(event) : event,
    param1: number("emit-p1"), param2: number("emit-p2"), param3: number("emit-p3") };
}

async function emit(request) {
  const reply = await fetch("/api/emit", { method: "POST", body: JSON.stringify(request), headers: { "X-Zunde-Token": token } });
  if (!reply.ok) throw new Error("emit: " + (await reply.json()).error);
}

document.getElementById("slow").addEventListener("change", e =>
  act(() => member("ToggleZundeTimeoutTest", { ret: e.target.checked }, true)));
document.getElementById("reset").addEventListener("click", () => act(() => member("Reset", {}, true)));
document.getElementById("emit").addEventListener("submit", e => { e.preventDefault(); act(() => emit(emitRequest())); });
listen();
drawAll();
setInterval(drawGuide, 60 * 1000);
