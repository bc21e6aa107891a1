namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>A face as pango is asked for it; the family may be a list, first choice first.</summary>
internal readonly record struct FontSpec(string Family, bool Bold = false, bool Italic = false)
{
    internal static readonly FontSpec Default = new("Liberation Sans,DejaVu Sans");
}
