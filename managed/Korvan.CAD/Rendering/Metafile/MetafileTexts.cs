using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using TextElement = Korvan.CAD.FileFormats.Cgm.Commands.Text;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>Collects the texts of all pictures, without drawing them.</summary>
internal static class MetafileTexts
{
    private const double UsualSizeShare = 0.01;

    internal static List<TextInformation> Collect(CgmFile file)
    {
        var scene = new MetafileScene(file);
        var texts = new List<TextInformation>();
        foreach (MetafilePicture picture in scene.Pictures)
        {
            PictureState state = picture.State.Clone();
            for (int at = picture.First; at < picture.End; at++)
            {
                Command command = scene.CommandAt(at);
                CgmPoint? position = command switch
                {
                    TextElement text => text.Position,
                    RestrictedText text => text.Position,
                    _ => null,
                };
                if (position is not null)
                {
                    texts.Add(Describe(((TextCommand)command).Content, position, state, picture));
                }
                else if (command is AppendText piece && texts.Count > 0)
                {
                    TextInformation last = texts[^1];
                    texts[^1] = new TextInformation(last.Text + piece.Content, last.Position, last.Height, last.Angle, last.FontName);
                }
                else
                {
                    StateChanges.Apply(state, command);
                }
            }
        }

        return texts;
    }

    private static TextInformation Describe(string content, CgmPoint position, PictureState state, MetafilePicture picture)
    {
        TextState look = state.Paint.Text;
        double height = Math.Abs(look.Height ?? picture.Frame.Longest * UsualSizeShare);
        double angle = look.Orientation is CharacterOrientation turned
            ? Math.Atan2(turned.BaseY, turned.BaseX) * 180 / Math.PI
            : 0;
        int font = look.Font ?? 1;
        string name = font >= 1 && font <= state.Fonts.Count ? state.Fonts[font - 1] : "";
        return new TextInformation(content, position, height, angle, name);
    }
}
