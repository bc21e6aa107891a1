namespace Korvan.CAD.FileFormats.Cad;

/// <summary>States that a property is one value under one group code, as points and sizes are not.</summary>
public abstract class CadSingleValueProperty : CadPropertyAttribute
{
    internal CadSingleValueProperty(int code)
        : base(code)
    {
    }
}
