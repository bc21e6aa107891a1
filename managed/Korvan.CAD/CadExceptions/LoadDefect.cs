using System.Globalization;

namespace Korvan.CAD.CadExceptions;

/// <summary>A defect of a file: what is wrong, and where.</summary>
/// <param name="Code">The kind of the defect.</param>
/// <param name="FileName">The file.</param>
/// <param name="Place">The place in the file, as in "line 12".</param>
/// <param name="Handle">The handle of the object that has the defect; 0 where it is not known.</param>
/// <param name="Cause">What is wrong, and what would be right.</param>
internal sealed record LoadDefect(
    LoadDefectCode Code, string FileName, string Place, ulong Handle, string Cause)
{
    /// <inheritdoc/>
    public override string ToString()
    {
        string handle = Handle == 0 ? "" : $", handle {Handle.ToString("X", CultureInfo.InvariantCulture)}";
        return $"'{FileName}', {Place}{handle}: {Cause}.";
    }
}
