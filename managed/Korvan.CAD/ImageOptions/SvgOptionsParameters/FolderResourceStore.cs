using System;
using System.IO;

namespace Korvan.CAD.ImageOptions.SvgOptionsParameters;

/// <summary>Stores fonts and images as files in a folder.</summary>
internal sealed class FolderResourceStore(string folder, string uri) : ISvgResourceKeeperCallback
{
    public void OnFontResourceReady(FontStoringArgs args)
    {
        string face = (args.IsBold ? "-bold" : "") + (args.IsItalic ? "-italic" : "");
        string file = args.SourceFontFileName;
        string name = Path.GetFileNameWithoutExtension(file) + face + Path.GetExtension(file);
        Write(name, args.GetFontData());
        args.FontFileUri = Address(name);
    }

    public string OnImageResourceReady(byte[] imageData, SvgImageType imageType, string suggestedFileName)
    {
        Write(suggestedFileName, imageData);
        return Address(suggestedFileName);
    }

    private string Address(string name)
    {
        string escaped = Uri.EscapeDataString(name);
        return uri.Length == 0 ? escaped : $"{uri.TrimEnd('/')}/{escaped}";
    }

    private void Write(string name, byte[] data)
    {
        Directory.CreateDirectory(folder);
        AtomicFile.Write(Path.Combine(folder, name), true, stream => stream.Write(data));
    }
}
