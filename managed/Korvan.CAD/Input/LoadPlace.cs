namespace Korvan.CAD.Input;

/// <summary>A place in a file.</summary>
/// <param name="File">The name of the file or stream.</param>
/// <param name="Line">The line, counted from 1; 0 if unknown.</param>
/// <param name="Record">The record as the format writes its identifier, such as <c>#12</c>; empty for none.</param>
internal readonly record struct LoadPlace(string File, int Line = 0, string Record = "")
{
    /// <summary>Returns the place as messages begin with it.</summary>
    public override string ToString()
    {
        string line = Line > 0 ? $", line {Line}" : string.Empty;
        string record = Record.Length > 0 ? $", {Record}" : string.Empty;
        return $"'{File}'{line}{record}";
    }
}
