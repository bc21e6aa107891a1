namespace Korvan.CAD.FileFormats.Cad;

/// <summary>States that a property is a boolean, 0 or 1.</summary>
public sealed class CadBoolAttribute : CadSingleValueProperty
{
    /// <summary>Creates the statement.</summary>
    /// <param name="code">The group code.</param>
    public CadBoolAttribute(int code)
        : base(code)
    {
    }
}
