using System.Collections.Generic;
using System.Runtime.InteropServices;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>How the fields of a subclass in a file differed from what its class would write: which were missing, which
/// were there in spite of their default, and up to which they were understood. An object that was not changed is
/// written with the same fields again.</summary>
internal sealed class SequenceLayout
{
    private readonly Dictionary<FieldKey, object> _missing = [];
    private readonly HashSet<FieldKey> _present = [];
    private readonly Dictionary<FieldKey, (string Text, int[] Lengths)> _chunks = [];

    /// <summary>Gets the last field that was understood, which those after it are kept as they are; null where all
    /// were.</summary>
    internal FieldKey? End { get; set; }

    /// <summary>Gets whether the class would write the same fields without this.</summary>
    internal bool IsEmpty => _missing.Count == 0 && _present.Count == 0 && _chunks.Count == 0 && End is null;

    internal void AddMissing(FieldKey field, object value) => _missing[field] = value;

    internal void AddPresent(FieldKey field) => _present.Add(field);

    /// <summary>Notes the lengths of the chunks that a long string had.</summary>
    internal void AddChunks(FieldKey field, string text, int[] lengths) => _chunks[field] = (text, lengths);

    /// <summary>Returns the lengths of the chunks of a string that was not changed; null for others.</summary>
    internal int[]? ChunksOf(FieldKey field, string text) =>
        _chunks.TryGetValue(field, out (string Text, int[] Lengths) chunks) && chunks.Text == text
            ? chunks.Lengths : null;

    /// <summary>Determines whether a field is written. One that was missing is not, unless its value was
    /// changed.</summary>
    internal bool Writes(FieldKey field, object? value) =>
        !(_missing.TryGetValue(field, out object? missing) && Equals(missing, value));

    /// <summary>Determines whether an optional field is written.</summary>
    internal bool Includes(FieldKey field, bool isSet) => isSet || _present.Contains(field);
}

/// <summary>A field of a subclass: its group code, and how many with this code are before it. Optional fields count
/// whether they are there or not, so that a change of one leaves the keys of the others alone.</summary>
internal readonly record struct FieldKey(int Code, int Index)
{
    /// <summary>The key before the first field.</summary>
    internal static readonly FieldKey None = new(-1, 0);
}

/// <summary>Numbers the fields of a subclass by their group codes.</summary>
internal sealed class FieldCounter
{
    private readonly Dictionary<int, int> _counts = [];

    internal void Clear() => _counts.Clear();

    /// <summary>Returns the key that the next field of a group code gets.</summary>
    internal FieldKey Peek(int code) => new(code, _counts.GetValueOrDefault(code));

    internal FieldKey Next(int code) =>
        new(code, CollectionsMarshal.GetValueRefOrAddDefault(_counts, code, out _)++);
}
