using System;
using System.Text;
using Korvan.CAD.Binding;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD;

/// <summary>Leads from code pages to the names that drawings give them, and from texts to bytes.</summary>
public static class CodePagesConvertHelper
{
    /// <summary>Finds the code page of a name such as <c>ANSI_1252</c>, <c>BIG5</c> or <c>UTF-8</c>.</summary>
    /// <param name="name">The name, as the variable $DWGCODEPAGE has it; upper and lower case are the same.</param>
    /// <returns>The code page, or <see cref="CodePages.Default"/> for one that <see cref="CodePages"/> lacks.</returns>
    public static CodePages FromName(string name)
    {
        Verify.NotNull(name);
        var page = (CodePages)DwgCodePage.Number(name);
        return Enum.IsDefined(page) ? page : CodePages.Default;
    }

    /// <summary>Gives the name that drawings have for a code page.</summary>
    /// <param name="codePage">The code page; <see cref="CodePages.Default"/> is that of drawings that state none.</param>
    /// <returns>The name that drawings have for a code page.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such code page.</exception>
    public static string ToName(CodePages codePage) => codePage switch
    {
        CodePages.Default => DwgCodePage.DefaultName,
        CodePages.Utf8 => "UTF-8",
        _ => "ANSI_" + Number(codePage),
    };

    /// <summary>Finds the code page that a double-byte code page of sequences <c>\M+nXXXX</c> is.</summary>
    /// <param name="codePage">The double-byte code page.</param>
    /// <returns>The code page; <see cref="CodePages.Default"/> for <see cref="MifCodePages.Undefined"/> and for Johab,
    /// which drawings cannot state.</returns>
    public static CodePages FromMif(MifCodePages codePage) => codePage switch
    {
        MifCodePages.Japanese => CodePages.Japanese,
        MifCodePages.TradChinese => CodePages.TradChinese,
        MifCodePages.Korean => CodePages.Korean,
        MifCodePages.SimpChinese => CodePages.SimpChinese,
        _ => CodePages.Default,
    };

    /// <summary>Gives the bytes of a text. Letters that the code page lacks become <c>\U+XXXX</c>.</summary>
    /// <param name="text">The text.</param>
    /// <param name="codePage">The code page.</param>
    /// <returns>The bytes of a text.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such code page.</exception>
    public static byte[] Encode(string text, CodePages codePage)
    {
        Verify.NotNull(text);
        return TextEscapes.Escaping(DwgCodePage.Get(Number(codePage))).GetBytes(text);
    }

    /// <summary>Gives the text of bytes. Sequences <c>\U+XXXX</c> and <c>\M+nXXXX</c> become the letters that they
    /// stand for.</summary>
    /// <param name="bytes">The bytes.</param>
    /// <param name="codePage">The code page.</param>
    /// <returns>The text of bytes.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such code page.</exception>
    public static string Decode(byte[] bytes, CodePages codePage)
    {
        Verify.NotNull(bytes);
        return TextEscapes.Standard.Decode(DwgCodePage.Get(Number(codePage)).GetString(bytes));
    }

    private static int Number(CodePages codePage)
    {
        if (!Enum.IsDefined(codePage))
        {
            throw Verify.OutOfRange(nameof(codePage), codePage, "No code page has this number.");
        }

        return codePage == CodePages.Default ? DwgCodePage.Number(DwgCodePage.DefaultName) : (int)codePage;
    }
}
