namespace Korvan.CAD.FileFormats.Cad;

/// <summary>States that a property is a point in space: the code of X, Y is 10 and Z 20 more.</summary>
public sealed class Cad3DPointAttribute : CadPropertyAttribute
{
    /// <summary>Creates the statement.</summary>
    /// <param name="code">The group code.</param>
    public Cad3DPointAttribute(int code)
        : base(code)
    {
    }
}
