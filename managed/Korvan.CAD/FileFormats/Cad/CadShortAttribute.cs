namespace Korvan.CAD.FileFormats.Cad;

/// <summary>States that a property is a 16-bit integer or an enum.</summary>
public sealed class CadShortAttribute : CadSingleValueProperty
{
    /// <summary>Creates the statement.</summary>
    /// <param name="code">The group code.</param>
    public CadShortAttribute(int code)
        : base(code)
    {
    }
}
