namespace Korvan.CAD.FileFormats.Cad;

/// <summary>States that a property is bytes, in chunks of one code.</summary>
public sealed class CadBinaryAttribute : CadSingleValueProperty
{
    /// <summary>Creates the statement.</summary>
    /// <param name="code">The group code.</param>
    public CadBinaryAttribute(int code)
        : base(code)
    {
    }
}
