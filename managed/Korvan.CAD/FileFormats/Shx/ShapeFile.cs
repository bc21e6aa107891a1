using System;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Shx;

/// <summary>What the numbers of the shapes of a compiled file mean.</summary>
internal enum ShapeFileKind
{
    /// <summary>Symbols, or the bytes of a code page.</summary>
    Shapes,

    /// <summary>UTF-16 units.</summary>
    Unicode,

    /// <summary>One or two bytes of a code page of East Asia.</summary>
    Big,
}

/// <summary>A compiled shape file: symbols by name, and characters by number.</summary>
internal sealed class ShapeFile
{
    private readonly Dictionary<int, byte[]> _codes = [];
    private readonly Dictionary<string, int> _numbers = new(StringComparer.OrdinalIgnoreCase);

    internal ShapeFile(ShapeFileKind kind) => Kind = kind;

    internal ShapeFileKind Kind { get; }

    /// <summary>Gets the height of capitals in units of the file; 0 where it is no font.</summary>
    internal int Above { get; private set; }

    /// <summary>Gets the depth of lower case letters below the baseline.</summary>
    internal int Below { get; private set; }

    /// <summary>Gets the ranges of bytes that begin a character of two bytes.</summary>
    internal List<(int First, int Last)> LeadBytes { get; } = [];

    internal IEnumerable<int> Numbers => _codes.Keys;

    /// <summary>Reads a file.</summary>
    /// <returns>Its shapes; null where it is not a shape file or is damaged.</returns>
    internal static ShapeFile? TryRead(byte[] data) => ShapeFileReader.Read(data);

    /// <summary>Returns the strokes of a symbol, in units of the file.</summary>
    /// <returns>Polylines; null where there is no such shape.</returns>
    internal List<Vec2[]>? Find(string name) =>
        _numbers.TryGetValue(name, out int number) ? Draw(number)?.Strokes : null;

    /// <summary>Returns the number of a symbol; null where there is no such shape.</summary>
    internal int? NumberOf(string name) => _numbers.TryGetValue(name, out int number) ? number : null;

    /// <summary>Returns the name of a symbol; empty where there is no such shape.</summary>
    internal string NameOf(int number)
    {
        foreach ((string name, int known) in _numbers)
        {
            if (known == number)
            {
                return name;
            }
        }

        return "";
    }

    /// <summary>Returns the strokes of a shape and where the pen is after it, in units of the file; null where there is
    /// no such shape.</summary>
    internal ShapeStrokes? Draw(int number) =>
        _codes.ContainsKey(number) ? new ShapePen(_codes, Kind, Above).Draw(number) : null;

    /// <summary>Adds a shape: its name, a zero and its code.</summary>
    internal void Add(int number, ReadOnlySpan<byte> shape)
    {
        int end = shape.IndexOf((byte)0);
        if (end < 0)
        {
            return;
        }

        ReadOnlySpan<byte> code = shape[(end + 1)..];
        if (number == 0)
        {
            SetMetrics(code);
            return;
        }

        _codes[number] = code.ToArray();
        if (end > 0)
        {
            _numbers[Encoding.Latin1.GetString(shape[..end])] = number;
        }
    }

    // The shape with the number 0 is that of the font: heights above and below the baseline, and modes.
    private void SetMetrics(ReadOnlySpan<byte> code)
    {
        if (code.Length >= 2)
        {
            (Above, Below) = (code[0], code[1]);
        }
    }
}
