namespace Korvan.CAD.FileFormats.Cad;

/// <summary>States that a property is a floating-point number.</summary>
public sealed class CadDoubleAttribute : CadSingleValueProperty
{
    /// <summary>Creates the statement.</summary>
    /// <param name="code">The group code.</param>
    public CadDoubleAttribute(int code)
        : base(code)
    {
    }
}
