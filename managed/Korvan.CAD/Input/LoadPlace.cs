namespace Korvan.CAD.Input;

/// <summary>A place in a file.</summary>
/// <param name="File">The name of the file or stream.</param>
/// <param name="Line">The line, counted from 1; 0 if unknown.</param>
/// <param name="Record">The record as the format writes its identifier, such as <c>#12</c>; empty for none.</param>
/// <param name="Offset">The byte, counted from 0, in files without lines; -1 if unknown.</param>
internal readonly record struct LoadPlace(string File, int Line = 0, string Record = "", long Offset = -1)
{
    /// <summary>Returns the place as messages begin with it.</summary>
    public override string ToString()
    {
        string line = Line > 0 ? $", line {Line}" : Offset >= 0 ? $", byte {Offset}" : string.Empty;
        string record = Record.Length > 0 ? $", {Record}" : string.Empty;
        return $"'{File}'{line}{record}";
    }
}
