namespace Korvan.CAD.Input;

/// <summary>A defect of a file that was found while it was loaded.</summary>
/// <param name="Code">The kind of defect.</param>
/// <param name="Place">Where it is.</param>
/// <param name="Cause">What is wrong and, where that helps, what was expected; without a period.</param>
internal sealed record LoadDefect(LoadDefectCode Code, LoadPlace Place, string Cause)
{
    /// <summary>Returns the message that users see: place and cause.</summary>
    public override string ToString() => SafeText.Of($"{Place}: {Cause}.");
}
