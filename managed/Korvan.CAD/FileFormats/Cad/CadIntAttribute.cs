namespace Korvan.CAD.FileFormats.Cad;

/// <summary>States that a property is a 32-bit integer or an enum.</summary>
public sealed class CadIntAttribute : CadSingleValueProperty
{
    /// <summary>Creates the statement.</summary>
    /// <param name="code">The group code.</param>
    public CadIntAttribute(int code)
        : base(code)
    {
    }
}
