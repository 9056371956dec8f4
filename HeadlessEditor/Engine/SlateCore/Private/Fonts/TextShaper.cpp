#include "Fonts/TextShaper.h"

#include "Containers/StringConv.h"
#include "Styling/CoreStyle.h"

#include <cmath>
#include <pango/pangocairo.h>

namespace
{
	/** The family list: Roboto, then the system's Japanese face for characters Roboto lacks. */
	const char* const DefaultFamilies = "Roboto,Noto Sans CJK JP";
	const char* const CondensedFamilies = "Roboto Condensed,Noto Sans CJK JP";
	const char* const MonoFamilies = "DejaVu Sans Mono,Noto Sans Mono CJK JP";

	/** The typeface the font asks for, or the family's first one when it names none the family has. */
	FString ResolveTypeface(const FSlateFontInfo& Font)
	{
		const FCompositeFont* Family = Font.GetCompositeFont() ? Font.GetCompositeFont() : &FCoreStyle::GetDefaultFont().Get();
		for (const FTypefaceEntry& Entry : Family->DefaultTypeface.Fonts)
		{
			if (Entry.Name == Font.TypefaceFontName)
			{
				return Entry.Name.ToString();
			}
		}
		return Family->DefaultTypeface.Fonts.Num() > 0 ? Family->DefaultTypeface.Fonts[0].Name.ToString() : FString(TEXT("Regular"));
	}

	/** Maps a typeface name ("BoldCondensedItalic", "Light"...) to a Pango font description at the font's pixel size. */
	PangoFontDescription* MakeDescription(const FSlateFontInfo& Font, float FontScale)
	{
		const FString Typeface = ResolveTypeface(Font);
		PangoFontDescription* Description = pango_font_description_new();
		const bool bMono = Typeface.Contains(TEXT("Mono"));
		const bool bCondensed = Typeface.Contains(TEXT("Condensed"));
		pango_font_description_set_family(Description, bMono ? MonoFamilies : bCondensed ? CondensedFamilies
																						 : DefaultFamilies);
		PangoWeight Weight = PANGO_WEIGHT_NORMAL;
		if (Typeface.Contains(TEXT("Black")))
		{
			Weight = PANGO_WEIGHT_HEAVY;
		}
		else if (Typeface.Contains(TEXT("Bold")))
		{
			Weight = PANGO_WEIGHT_BOLD;
		}
		else if (Typeface.Contains(TEXT("VeryLight")))
		{
			Weight = PANGO_WEIGHT_THIN;
		}
		else if (Typeface.Contains(TEXT("Light")))
		{
			Weight = PANGO_WEIGHT_LIGHT;
		}
		pango_font_description_set_weight(Description, Weight);
		pango_font_description_set_style(Description, Typeface.Contains(TEXT("Italic")) ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
		// A Slate font size is in points at 96 dots per inch.
		const double Pixels = Font.Size * 96.0 / 72.0 * FontScale;
		pango_font_description_set_absolute_size(Description, Pixels * PANGO_SCALE);
		return Description;
	}

	int32 PangoUnitsToPixelsUp(int32 Units)
	{
		return static_cast<int32>(std::ceil(static_cast<double>(Units) / PANGO_SCALE));
	}
}

FTextShaper& FTextShaper::Get()
{
	static FTextShaper Shaper;
	return Shaper;
}

FTextShaper::FTextShaper()
	: FontMap(pango_cairo_font_map_new())
	, Context(nullptr)
{
	pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(FontMap), 96.0);
	Context = pango_font_map_create_context(FontMap);
	cairo_font_options_t* Options = cairo_font_options_create();
	cairo_font_options_set_antialias(Options, CAIRO_ANTIALIAS_GRAY);
	cairo_font_options_set_subpixel_order(Options, CAIRO_SUBPIXEL_ORDER_DEFAULT);
	cairo_font_options_set_hint_style(Options, CAIRO_HINT_STYLE_SLIGHT);
	cairo_font_options_set_hint_metrics(Options, CAIRO_HINT_METRICS_ON);
	pango_cairo_context_set_font_options(Context, Options);
	cairo_font_options_destroy(Options);
	pango_context_set_round_glyph_positions(Context, TRUE);
	pango_context_set_language(Context, pango_language_from_string("en"));
}

FTextShaper::~FTextShaper()
{
	g_object_unref(Context);
	g_object_unref(FontMap);
}

PangoLayout* FTextShaper::MakeLayout(const FString& Text, const FSlateFontInfo& Font, float FontScale) const
{
	PangoLayout* Layout = pango_layout_new(Context);
	PangoFontDescription* Description = MakeDescription(Font, FontScale);
	pango_layout_set_font_description(Layout, Description);
	pango_font_description_free(Description);
	if (Font.LetterSpacing != 0)
	{
		// Letter spacing is in thousandths of an em, as the engine's.
		PangoAttrList* Attributes = pango_attr_list_new();
		const double Pixels = Font.Size * 96.0 / 72.0 * FontScale * Font.LetterSpacing / 1000.0;
		pango_attr_list_insert(Attributes, pango_attr_letter_spacing_new(static_cast<int>(Pixels * PANGO_SCALE)));
		pango_layout_set_attributes(Layout, Attributes);
		pango_attr_list_unref(Attributes);
	}
	const FTCHARToUTF8 Utf8(*Text);
	pango_layout_set_text(Layout, Utf8.Get(), Utf8.Length());
	return Layout;
}

FVector2D FTextShaper::MeasureLine(const FString& Text, const FSlateFontInfo& Font, float FontScale) const
{
	PangoLayout* Layout = MakeLayout(Text, Font, FontScale);
	PangoRectangle Logical;
	pango_layout_get_extents(Layout, nullptr, &Logical);
	g_object_unref(Layout);
	return FVector2D(PangoUnitsToPixelsUp(Logical.width), GetLineHeight(Font, FontScale));
}

uint16 FTextShaper::GetLineHeight(const FSlateFontInfo& Font, float FontScale) const
{
	// A line as high as the font's ascent and descent, whatever characters it holds.
	PangoLayout* Layout = MakeLayout(FString(), Font, FontScale);
	PangoRectangle Logical;
	pango_layout_get_extents(Layout, nullptr, &Logical);
	g_object_unref(Layout);
	return static_cast<uint16>(PangoUnitsToPixelsUp(Logical.height));
}

int16 FTextShaper::GetDescent(const FSlateFontInfo& Font, float FontScale) const
{
	PangoLayout* Layout = MakeLayout(FString(), Font, FontScale);
	PangoRectangle Logical;
	pango_layout_get_extents(Layout, nullptr, &Logical);
	const int32 Baseline = pango_layout_get_baseline(Layout);
	g_object_unref(Layout);
	return static_cast<int16>(PangoUnitsToPixelsUp(Logical.height - Baseline));
}

void FTextShaper::DrawLine(cairo_t* CairoContext, const FString& Text, const FSlateFontInfo& Font, float FontScale) const
{
	PangoLayout* Layout = MakeLayout(Text, Font, FontScale);
	pango_cairo_show_layout(CairoContext, Layout);
	g_object_unref(Layout);
}
