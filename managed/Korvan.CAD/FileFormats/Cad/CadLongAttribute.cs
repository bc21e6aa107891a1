namespace Korvan.CAD.FileFormats.Cad;

/// <summary>States that a property is a 64-bit integer.</summary>
public sealed class CadLongAttribute : CadSingleValueProperty
{
    /// <summary>Creates the statement.</summary>
    /// <param name="code">The group code.</param>
    public CadLongAttribute(int code)
        : base(code)
    {
    }
}
