using System;
using System.IO;

namespace Korvan.CAD.ImageOptions.SvgOptionsParameters;

/// <summary>Keeps fonts and pictures as files in a folder.</summary>
internal sealed class FolderResourceKeeper(string folder, string uri) : ISvgResourceKeeperCallback
{
    public void OnFontResourceReady(FontStoringArgs args)
    {
        string face = (args.IsBold ? "-bold" : "") + (args.IsItalic ? "-italic" : "");
        string name = Path.GetFileNameWithoutExtension(args.SourceFontFileName) + face + Path.GetExtension(args.SourceFontFileName);
        Write(name, args.GetFontData());
        args.FontFileUri = Address(name);
    }

    public string OnImageResourceReady(byte[] imageData, SvgImageType imageType, string suggestedFileName)
    {
        Write(suggestedFileName, imageData);
        return Address(suggestedFileName);
    }

    private string Address(string name) => uri.Length == 0 ? Uri.EscapeDataString(name) : $"{uri.TrimEnd('/')}/{Uri.EscapeDataString(name)}";

    private void Write(string name, byte[] data)
    {
        Directory.CreateDirectory(folder);
        AtomicFile.Write(Path.Combine(folder, name), true, stream => stream.Write(data));
    }
}
