namespace Korvan.CAD.FileFormats.Cad;

/// <summary>States that a property is a text, a name or a handle in hexadecimal.</summary>
public sealed class CadStringAttribute : CadSingleValueProperty
{
    /// <summary>Creates the statement.</summary>
    /// <param name="code">The group code.</param>
    public CadStringAttribute(int code)
        : base(code)
    {
    }
}
