using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Texts of enhanced metafiles, by their records: readers may pass over transforms of the world.</summary>
public class EmfTextTests
{
    private const int WorldTransform = 35;
    private const int Select = 37;
    private const int Font = 82;
    private const int Text = 84;

    [Fact]
    public void Texts_have_fonts_of_their_own_height_and_angle()
    {
        List<Shown> texts = Save(
            new CadText { DefaultValue = "small", TextHeight = 2, FirstAlignment = new Cad3DPoint(10, 10, 0) },
            new CadText { DefaultValue = "super", TextHeight = 10, FirstAlignment = new Cad3DPoint(10, 50, 0) },
            new CadText
            {
                DefaultValue = "steep",
                TextHeight = 10,
                TextRotation = 30,
                FirstAlignment = new Cad3DPoint(50, 10, 0),
            });
        Assert.All(texts, text => Assert.Null(text.Transform));
        Assert.Equal(5.0, (double)texts[1].Height / texts[0].Height, 0.02);
        Assert.Equal([0, 0, 300], texts.Select(text => text.Tenths));
        Assert.Equal(texts[1].Height, texts[2].Height);
        Assert.Equal(texts[0].X, texts[1].X);
        Assert.Equal(1.0, (double)(texts[2].X - texts[0].X) / (texts[0].Y - texts[1].Y), 0.01);
        Assert.Equal((texts[1].Advance, "steep"), (texts[2].Advance, texts[2].Content));
    }

    [Fact]
    public void Kerning_is_that_of_the_character_before()
    {
        List<Shown> texts = Save(
            new CadText { DefaultValue = "TA", TextHeight = 10 }, new CadText { DefaultValue = "TH", TextHeight = 10 });
        Assert.True(texts[0].Advance < texts[1].Advance);
    }

    [Fact]
    public void Texts_that_no_font_has_become_outlines()
    {
        List<Shown> texts = Save(
            new CadText { DefaultValue = "plain", TextHeight = 10 },
            new CadText { DefaultValue = "narrow", TextHeight = 10, ScaleX = 0.5 },
            new CadText { DefaultValue = "slanted", TextHeight = 10, ObliqueAngle = 20 },
            new CadText { DefaultValue = "mirrored", TextHeight = 10, TextGenerationFlags = 2 });
        Assert.Equal("plain", Assert.Single(texts).Content);
    }

    private static List<Shown> Save(params CadEntityBase[] entities)
    {
        using var file = new MemoryStream();
        var raster = new CadRasterizationOptions { PageWidth = 1000, PageHeight = 1000 };
        TestPage.Drawing(entities).Save(file, new EmfOptions { VectorRasterizationOptions = raster });
        return Read(file.ToArray());
    }

    private static List<Shown> Read(byte[] data)
    {
        List<Shown> texts = [];
        Dictionary<int, (int Height, int Tenths)> fonts = [];
        (int Height, int Tenths) font = default;
        float[]? transform = null;
        for (int at = 0; at < data.Length; at += BitConverter.ToInt32(data, at + 4))
        {
            int Field(int offset) => BitConverter.ToInt32(data, at + offset);
            switch (Field(0))
            {
                case Font:
                    fonts.Add(Field(8), (-Field(12), Field(20)));
                    break;
                case Select when fonts.TryGetValue(Field(8), out (int, int) selected):
                    font = selected;
                    break;
                case WorldTransform:
                    float[] values =
                        [.. Enumerable.Range(0, 6).Select(i => BitConverter.ToSingle(data, at + 8 + (4 * i)))];
                    transform = values is [1, 0, 0, 1, 0, 0] ? null : values;
                    break;
                case Text:
                    string content = Encoding.Unicode.GetString(data, at + Field(48), 2 * Field(44));
                    int first = BitConverter.ToInt32(data, at + Field(72));
                    texts.Add(new Shown(content, Field(36), Field(40), font.Height, font.Tenths, first, transform));
                    break;
            }
        }

        return texts;
    }

    private sealed record Shown(string Content, int X, int Y, int Height, int Tenths, int Advance, float[]? Transform);
}
