"""The page's JSON API refuses what it must, and then nothing has changed."""
import json
import sys
import unittest

from harness import Service

BUILD, SOURCE = sys.argv.pop(1), sys.argv.pop(1)
CHANGE = '{"country": "FR", "language": "fr"}'

# name, method, path, body, send the token, extra headers, status, error text
REFUSALS = [
    ("foreign Host", "POST", "/api/member/SetRemoteContentEnv", CHANGE, True, {"Host": "rebound.example:80"}, 403,
     'the Host "rebound.example:80" is not this server\'s'),
    ("foreign Origin", "POST", "/api/member/SetRemoteContentEnv", CHANGE, True, {"Origin": "http://elsewhere.example"},
     403, 'requests from "http://elsewhere.example" are not served'),
    ("POST without the token", "POST", "/api/member/SetRemoteContentEnv", CHANGE, False, {}, 403,
     "a change needs the X-Zunde-Token header"),
    ("wrong token", "POST", "/api/member/SetRemoteContentEnv", CHANGE, False, {"X-Zunde-Token": "0" * 32}, 403,
     "a change needs the X-Zunde-Token header"),
    ("malformed body", "POST", "/api/member/SetRemoteContentEnv", '{"country": "FR",', True, {}, 400,
     "the request is not a JSON object"),
    ("body not an object", "POST", "/api/member/SetRemoteContentEnv", "[1]", True, {}, 400,
     "the request is not a JSON object"),
    ("unknown member", "POST", "/api/member/SetRemoteContentEnvirons", CHANGE, True, {}, 404,
     'unknown member "SetRemoteContentEnvirons"'),
    ("a change by GET", "GET", "/api/member/Reset", None, True, {}, 405, "Reset changes state"),
    ("the slow switch by GET", "GET", "/api/member/ToggleZundeTimeoutTest?request=%7B%22ret%22%3Atrue%7D", None, True,
     {}, 405, "ToggleZundeTimeoutTest changes state"),
    ("event neither number nor name", "POST", "/api/emit", '{"event": "twelve"}', True, {}, 400,
     'the request needs "event"'),
    ("unknown path", "GET", "/api/members", None, True, {}, 404, "nothing at /api/members"),
]


class RefusedRequests(unittest.TestCase):
    def test_each_is_refused_with_json_and_changes_nothing(self):
        with Service(BUILD, SOURCE) as service:
            for name, method, path, body, token, headers, status, error in REFUSALS:
                with self.subTest(name):
                    if token:
                        headers = dict(headers, **{"X-Zunde-Token": service.token})
                    got, text = service.request(method, path, body, headers)
                    self.assertEqual(got, status, text)
                    reply = json.loads(text)
                    self.assertEqual(list(reply), ["error", "ret"])
                    self.assertIs(reply["ret"], False)
                    self.assertTrue(reply["error"].startswith(error), reply["error"])
                    self.assertEqual(service.cli("env", "get"), "country   US\nlanguage  en\n")
            # The same request with everything right does change it.
            self.assertEqual(service.post("/api/member/SetRemoteContentEnv", CHANGE)[0], 200)
            self.assertEqual(service.cli("env", "get"), "country   FR\nlanguage  fr\n")

    def test_answers_are_the_members_own_text(self):
        with Service(BUILD, SOURCE) as service:
            request = '{"activityID": 0}'
            bus = service.cli("call", "GetFullChannelList", request).rstrip("\n")
            self.assertEqual(service.get("/api/member/GetFullChannelList?request=%7B%22activityID%22%3A0%7D"), (200, bus))
            self.assertEqual(service.post("/api/member/GetFullChannelList", request), (200, bus))


if __name__ == "__main__":
    unittest.main()
