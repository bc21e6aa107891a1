using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>How the fields of a subclass in a file differed from what its class would write: which were missing, which
/// were there in spite of their default, and up to which they were understood. An object that was not changed is
/// written with the same fields again.</summary>
internal sealed class SequenceLayout
{
    private readonly Dictionary<int, object> _missing = [];
    private readonly HashSet<int> _present = [];
    private readonly Dictionary<int, (string Text, int[] Lengths)> _chunks = [];
    private int _end = int.MaxValue;

    /// <summary>Gets whether the class would write the same fields without this.</summary>
    internal bool IsEmpty => _missing.Count == 0 && _present.Count == 0
        && _chunks.Count == 0 && _end == int.MaxValue;

    internal void AddMissing(int call, object value) => _missing[call] = value;

    internal void AddPresent(int call) => _present.Add(call);

    /// <summary>Notes the lengths of the chunks that a long string had.</summary>
    internal void AddChunks(int call, string text, int[] lengths) => _chunks[call] = (text, lengths);

    /// <summary>Returns the lengths of the chunks of a string that was not changed; null for others.</summary>
    internal int[]? ChunksOf(int call, string text) =>
        _chunks.TryGetValue(call, out (string Text, int[] Lengths) chunks) && chunks.Text == text
            ? chunks.Lengths : null;

    /// <summary>Notes the last field that was understood: fields after it are kept as they are.</summary>
    internal void SetEnd(int call) => _end = call;

    /// <summary>Determines whether a field is written. One that was missing is not, unless its value was
    /// changed.</summary>
    internal bool Writes(int call, object? value) =>
        call <= _end && !(_missing.TryGetValue(call, out object? missing) && Equals(missing, value));

    /// <summary>Determines whether an optional field is written.</summary>
    internal bool Includes(int call, bool isSet) => call <= _end && (isSet || _present.Contains(call));
}
