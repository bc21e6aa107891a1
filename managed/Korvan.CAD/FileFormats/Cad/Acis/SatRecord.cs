using System;
using System.Globalization;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>A record: its type, then pointers to other records, numbers and keywords.</summary>
internal readonly record struct SatRecord(string[] Tokens)
{
    private const char Pointer = '$';
    private const int TokensPerStep = 64;

    internal string Type => Tokens[0];

    /// <summary>Gets where the values begin: after the last of the pointers at the beginning.</summary>
    internal int Values
    {
        get
        {
            int last = 0;
            for (int i = 1; i < Tokens.Length && (IsPointer(i) || IsCount(i)); i++)
            {
                last = IsPointer(i) ? i : last;
            }

            return last + 1;
        }
    }

    internal bool IsPointer(int token) => Tokens[token].Length > 1 && Tokens[token][0] == Pointer;

    /// <summary>Returns the index of the record that a token points to; negative for none.</summary>
    internal int Target(int token) => IsPointer(token) && int.TryParse(
        Tokens[token].AsSpan(1), NumberStyles.AllowLeadingSign, CultureInfo.InvariantCulture, out int index) ? index
        : -1;

    /// <summary>Returns a number; not a number where there is none.</summary>
    internal double Number(int token) => token >= 0 && token < Tokens.Length && double.TryParse(
        Tokens[token], NumberStyles.Float, CultureInfo.InvariantCulture, out double value) ? value : double.NaN;

    internal Vec3 Vector(int token) => new(Number(token), Number(token + 1), Number(token + 2));

    internal bool HasKeyword(string keyword) => Find(keyword) > 0;

    /// <summary>Counts the work of a search through the record.</summary>
    internal void Step() => Workload.Step(1 + (Tokens.Length / TokensPerStep));

    internal int Find(string keyword) => Array.IndexOf(Tokens, keyword);

    // Between the pointers newer texts have indices of the history.
    private bool IsCount(int token) =>
        int.TryParse(Tokens[token], NumberStyles.AllowLeadingSign, CultureInfo.InvariantCulture, out int value)
            && value == -1 && token + 1 < Tokens.Length && IsPointer(token + 1);
}
