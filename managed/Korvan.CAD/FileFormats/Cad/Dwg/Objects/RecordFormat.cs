using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>What the records of a file have in common.</summary>
/// <param name="Release">The release as a year.</param>
/// <param name="Encoding">The encoding of strings of 8-bit characters.</param>
/// <param name="Names">The names of the records of symbol tables.</param>
internal sealed record RecordFormat(int Release, Encoding Encoding, RecordNames Names)
{
    /// <summary>Gets whether strings are UTF-16, and apart from the other data.</summary>
    internal bool HasUnicode => Release >= 2007;
}
