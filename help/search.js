// Searches the topics of the help. Knows nothing of a page, so that it can be tested by itself.

// Words that say nothing about what is looked for, unless there are no others.
var FILLERS = ("a an and are as at be by can do does for from get how i if in is it me my no not of on or so than " +
  "that the then there this to use was what when where which who why will with you your").split(" ");
var IN_TITLE = 8, IN_INDEX = 5, IN_TEXT = 1, WHOLE_WORD = 2;
// So many topics are enough; else so many are shown.
var FEW = 3, SOME = 5;
var EXCERPT_BEFORE = 40, EXCERPT_BEHIND = 90;

// What is looked for, one pattern a word: words that begin so, signs wherever they are.
function patternsOf(question) {
  var words = question.toLowerCase().split(/[\s?!"]+/).map(withoutPunctuation).filter(Boolean);
  var telling = words.filter(function (word) { return FILLERS.indexOf(word) < 0; });
  return (telling.length ? telling : words).map(function (word) {
    var stem = word.length > 4 ? word.replace(/(ies|y|s)$/, "") : word;
    var escaped = stem.replace(/[.*+?^${}()|[\]\\\/-]/g, "\\$&");
    return new RegExp((/^[a-z0-9]/.test(stem) ? "(^|[^a-z0-9])" : "()") + "(" + escaped + ")", "i");
  });
}

function withoutPunctuation(word) {
  return word.length > 1 ? word.replace(/[.,;:]+$/, "") : word;
}

// How well one pattern fits a topic; 0 where it does not occur.
function weightOf(pattern, topic) {
  var whole = new RegExp(pattern.source + "($|[^a-z0-9])", "i");
  return [[topic.title, IN_TITLE], [topic.words.join("\n"), IN_INDEX], [topic.text, IN_TEXT]].reduce(
    function (sum, place) {
      if (!pattern.test(place[0])) return sum;
      return sum + place[1] * (whole.test(place[0]) ? WHOLE_WORD : 1);
    }, 0);
}

// The topics that have every word of the question, the best first; where these are few, some that have most of the
// words stand behind them. A topic is {title, words, text}: its words are those under which the index lists it.
function findTopics(topics, question) {
  var patterns = patternsOf(question);
  var found = topics.map(function (topic, place) {
    var weights = patterns.map(function (pattern) { return weightOf(pattern, topic); }).filter(Boolean);
    var sum = weights.reduce(function (total, weight) { return total + weight; }, 0);
    return { topic: topic, place: place, words: weights.length, weight: sum };
  }).filter(function (one) {
    return one.words > 0;
  }).sort(function (one, other) {
    return other.words - one.words || other.weight - one.weight || one.place - other.place;
  });
  var whole = found.filter(function (one) { return one.words === patterns.length; }).length;
  return found.slice(0, whole < FEW ? SOME : whole).map(function (one) { return one.topic; });
}

// The passage of a text in which the first word of the question occurs, as [before, the whole word, behind]; the
// beginning of the text where none does.
function excerptOf(text, question) {
  var patterns = patternsOf(question);
  for (var i = 0; i < patterns.length; ++i) {
    var match = new RegExp(patterns[i].source.replace(/\)$/, "[a-z0-9]*)"), "i").exec(text);
    if (match) return passage(text, match.index + match[1].length, match[2].length);
  }
  return [shortened(text, EXCERPT_BEHIND), "", ""];
}

function passage(text, at, length) {
  var from = at > EXCERPT_BEFORE ? text.indexOf(" ", at - EXCERPT_BEFORE) + 1 : 0;
  if (from > at) from = at;
  return [(from ? "\u2026 " : "") + text.slice(from, at), text.substr(at, length),
    shortened(text.slice(at + length), EXCERPT_BEHIND)];
}

function shortened(text, most) {
  if (text.length <= most) return text;
  return text.slice(0, Math.max(text.lastIndexOf(" ", most), 0)) + " \u2026";
}
